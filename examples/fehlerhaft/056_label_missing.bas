Option Explicit

Public Sub Pruefen()
    On Error GoTo Fehler
    Debug.Print 1
    Exit Sub
    Fehlr:
    Debug.Print 2
End Sub
