Option Explicit

Public Sub Pruefen()
    Dim lngAnzahl As Long
    If lngAnzahl > 3
        lngAnzahl = 0
    End If
End Sub
