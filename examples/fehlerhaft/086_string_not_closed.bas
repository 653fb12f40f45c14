Option Explicit

Public Sub Pruefen()
    Dim strText As String
    strText = "Hallo
    Debug.Print strText
End Sub
