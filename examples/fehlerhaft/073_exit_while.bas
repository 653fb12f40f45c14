Option Explicit

Public Sub Pruefen()
    Dim i As Long
    While i < 10
        Exit While
    Wend
End Sub
