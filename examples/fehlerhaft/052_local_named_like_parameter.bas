Option Explicit

Public Sub Pruefen(ByVal strName As String)
    Dim strName As String
    strName = "Meier"
End Sub
