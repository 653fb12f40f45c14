Option Explicit

Public Sub Pruefen()
    Debug.Print 1: 5 + 3
End Sub
