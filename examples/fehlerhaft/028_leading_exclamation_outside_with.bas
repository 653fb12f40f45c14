Option Explicit

Public Sub Pruefen()
    Dim strName As String
    strName = !Nachname
End Sub
