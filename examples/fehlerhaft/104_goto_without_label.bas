Option Explicit

Public Sub Pruefen()
    Debug.Print 1
    GoTo
End Sub
