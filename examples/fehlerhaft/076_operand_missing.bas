Option Explicit

Public Sub Pruefen()
    Dim lngSumme As Long
    lngSumme = 3 +
    Debug.Print lngSumme
End Sub
