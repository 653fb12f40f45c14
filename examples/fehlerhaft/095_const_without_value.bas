Option Explicit

Public Sub Pruefen()
    Const cAnzahl As Long
    Debug.Print cAnzahl
End Sub
