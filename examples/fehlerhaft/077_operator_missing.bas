Option Explicit

Public Sub Pruefen()
    Dim strText As String, strName As String
    strText = "Hallo " strName
End Sub
