Option Explicit

Public Sub Pruefen()
    Dim i As Long
    For i = 1 10
        Debug.Print i
    Next i
End Sub
