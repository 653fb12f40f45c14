Option Explicit

Public Sub Pruefen(lngWert As Long, strText As String, lngWert As Integer)
    Debug.Print lngWert
End Sub
