Option Explicit

Public Sub Pruefen()
    Dim i As Long
    For i 1 To 10
        Debug.Print i
    Next i
End Sub
