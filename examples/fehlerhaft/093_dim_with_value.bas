Option Explicit

Public Sub Pruefen()
    Dim lngWert As Long = 5
    Debug.Print lngWert
End Sub
