Option Explicit

Public Sub Pruefen()
    Dim lngAnzahl As Long
    If lngAnzahl = 0 Then
        Dim LNGANZAHL As Integer
    End If
End Sub
