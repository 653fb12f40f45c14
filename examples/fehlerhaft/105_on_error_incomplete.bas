Option Explicit

Public Sub Pruefen()
    On Error Resume
    Debug.Print 1
End Sub
