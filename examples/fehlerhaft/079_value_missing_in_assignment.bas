Option Explicit

Public Sub Pruefen()
    Dim lngSumme As Long
    lngSumme =
End Sub
