Option Explicit

Public Sub Pruefen()
    Open "C:\Daten\Liste.txt" For Reading As #1
    Close #1
End Sub
