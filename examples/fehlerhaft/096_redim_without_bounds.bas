Option Explicit

Public Sub Pruefen()
    Dim arrWerte() As Long
    ReDim Preserve arrWerte
    Debug.Print 1
End Sub
