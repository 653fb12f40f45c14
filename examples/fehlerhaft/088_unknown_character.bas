Option Explicit

Public Sub Pruefen()
    Dim lngWert As Long
    lngWert = 3 | 4
End Sub
