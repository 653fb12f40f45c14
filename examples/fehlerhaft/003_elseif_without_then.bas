Option Explicit

Public Sub Pruefen()
    Dim lngAnzahl As Long
    If lngAnzahl = 1 Then
        lngAnzahl = 2
    ElseIf lngAnzahl = 2
        lngAnzahl = 3
    End If
End Sub
