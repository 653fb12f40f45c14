Option Explicit

Public Sub Pruefen()
    Dim lngAnzahl As Long
    lngAnzahl = 1
    Else
    lngAnzahl = 2
End Sub
