Option Explicit

Public Sub Pruefen()
    CurrentDb.Execute "DELETE FROM tblImport"
    End With
End Sub
