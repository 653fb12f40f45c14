Option Explicit

Public Sub Pruefen()
    Dim lngAnzahl As Long
    If lngAnzahl > 3 Then
        lngAnzahl = 0
End Sub
