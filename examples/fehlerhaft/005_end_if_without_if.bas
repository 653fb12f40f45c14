Option Explicit

Public Sub Pruefen()
    Dim lngAnzahl As Long
    lngAnzahl = 1
    End If
End Sub
