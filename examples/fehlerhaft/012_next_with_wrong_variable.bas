Option Explicit

Public Sub Pruefen()
    Dim i As Long, j As Long
    For i = 1 To 10
        For j = 1 To 10
            Debug.Print i * j
        Next i
    Next j
End Sub
