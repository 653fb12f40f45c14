Option Explicit

Public Sub Pruefen(Optional lngWert As Long, strText As String)
    Debug.Print strText
End Sub
