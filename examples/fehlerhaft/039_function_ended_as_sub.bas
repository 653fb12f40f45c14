Option Explicit

Public Function Anzahl() As Long
    Anzahl = 1
End Sub
