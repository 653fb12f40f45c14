Option Explicit

Public Sub Pruefen()
    Dim i As Long
    Do While i < 10
        Exit For
    Loop
End Sub
