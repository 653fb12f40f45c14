Option Explicit

Public Sub Pruefen()
    Open "C:\Daten\Liste.txt" For Input
    Close
End Sub
