Option Explicit

Public Sub Pruefen()
    With
        .Execute "DELETE FROM tblImport"
    End With
End Sub
