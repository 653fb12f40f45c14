Option Explicit

Public Sub Pruefen()
    Dim strText As String
    strText = „Hallo“
End Sub
