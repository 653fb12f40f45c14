Option Explicit

Public Sub Pruefen()
    Dim lngWert As
    lngWert = 1
End Sub
