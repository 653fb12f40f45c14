Option Explicit

Public Function Anzahl() As Long
    Dim Anzahl As Long
    Anzahl = 1
End Function
