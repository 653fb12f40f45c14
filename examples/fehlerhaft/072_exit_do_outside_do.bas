Option Explicit

Public Sub Pruefen()
    Dim i As Long
    While i < 10
        Exit Do
    Wend
End Sub
