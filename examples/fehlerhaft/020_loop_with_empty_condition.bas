Option Explicit

Public Sub Pruefen()
    Dim i As Long
    Do
        i = i + 1
    Loop Until
End Sub
