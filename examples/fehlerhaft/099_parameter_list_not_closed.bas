Option Explicit

Public Sub Pruefen(ByVal lngWert As Long
    Debug.Print lngWert
End Sub
