Option Explicit

Public Sub Pruefen()
    Dim db As Object
    Set db CurrentDb
End Sub
