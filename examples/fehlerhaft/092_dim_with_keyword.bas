Option Explicit

Public Sub Pruefen()
    Dim Next As Long
    Debug.Print 1
End Sub
