Option Explicit

Public Sub Pruefen()
    Dim i As Long
    i = i + 1
    Wend
End Sub
