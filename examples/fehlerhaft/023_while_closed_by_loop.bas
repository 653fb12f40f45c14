Option Explicit

Public Sub Pruefen()
    Dim i As Long
    While i < 10
        i = i + 1
    Loop
End Sub
