Option Explicit

Public Sub Pruefen()
    Debug.Print 1
    Exit Function
End Sub
