Option Explicit

Public Sub Pruefen()
    With CurrentDb
        .Execute "DELETE FROM tblImport"
End Sub
