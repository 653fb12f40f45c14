Option Explicit

Public Sub Pruefen()
    Dim db As Object
    Set db = CurrentDb
    db.
    Debug.Print 1
End Sub
