Option Explicit

Public Sub Pruefen()
    Dim i As Long
    Do While i < 10
        i = i + 1
End Sub
