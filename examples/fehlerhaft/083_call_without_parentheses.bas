Option Explicit

Public Sub Pruefen()
    Call Speichern "Datei"
End Sub
