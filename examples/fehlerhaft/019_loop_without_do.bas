Option Explicit

Public Sub Pruefen()
    Dim i As Long
    i = i + 1
    Loop Until i = 10
End Sub
