Option Explicit

Public Sub Pruefen()
    Dim lngAnzahl As Long
    If lngAnzahl = 1 Then
        lngAnzahl = 2
    Else
        lngAnzahl = 3
    ElseIf lngAnzahl = 4 Then
        lngAnzahl = 4
    End If
End Sub
