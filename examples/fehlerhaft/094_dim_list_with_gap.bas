Option Explicit

Public Sub Pruefen()
    Dim lngWert As Long, , strText As String
    Debug.Print lngWert
End Sub
