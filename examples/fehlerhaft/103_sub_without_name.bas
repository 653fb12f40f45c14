Option Explicit

Public Sub (ByVal lngWert As Long)
    Debug.Print lngWert
End Sub
