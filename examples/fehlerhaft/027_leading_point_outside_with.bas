Option Explicit

Public Sub Pruefen()
    Dim db As Object
    Set db = CurrentDb
    .Execute "DELETE FROM tblImport"
End Sub
