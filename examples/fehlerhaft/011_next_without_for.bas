Option Explicit

Public Sub Pruefen()
    Dim i As Long
    Debug.Print i
    Next i
End Sub
