Option Explicit

Public Sub Pruefen()
    On Error GoTo Fehler
    Exit Sub
    Fehler:
    Resume Next Fehler
End Sub
