Option Explicit

Public Sub Pruefen()
    Dim lngWert Long
    lngWert = 1
End Sub
