Option Explicit

Public Sub Pruefen()
    Dim strText As String
    strText = Left(Trim("abc"), 2))
End Sub
