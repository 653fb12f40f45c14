Option Explicit

Public Sub Pruefen(lngWert As Long strText As String)
    Debug.Print lngWert
End Sub
