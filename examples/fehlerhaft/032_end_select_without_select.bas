Option Explicit

Public Sub Pruefen()
    Dim lngArt As Long
    lngArt = 1
    End Select
End Sub
