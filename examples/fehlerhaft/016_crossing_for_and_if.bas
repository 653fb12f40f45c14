Option Explicit

Public Sub Pruefen()
    Dim i As Long
    For i = 1 To 10
        If i = 5 Then
            Debug.Print i
    Next i
        End If
End Sub
