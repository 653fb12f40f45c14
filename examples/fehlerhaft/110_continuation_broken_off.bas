Option Explicit

Public Sub Pruefen()
    Dim strText As String
    strText = "Hallo " & _

    Debug.Print strText
End Sub
