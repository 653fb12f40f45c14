Option Explicit

Public Sub Pruefen()
    Weiter:
    Debug.Print 1
    Weiter:
    Debug.Print 2
End Sub
