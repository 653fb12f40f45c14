Option Explicit

Public Sub Pruefen()
    Dim lngSumme As Long
    lngSumme = 3 * / 4
End Sub
