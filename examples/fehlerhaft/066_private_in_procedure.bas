Option Explicit

Public Sub Pruefen()
    Private lngAnzahl As Long
    lngAnzahl = 1
End Sub
