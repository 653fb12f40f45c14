Option Explicit

Public Sub Pruefen()
    Dim As Long
    Debug.Print 1
End Sub
