Option Explicit

Public Sub Pruefen()
    Dim lngAnzahl As Long
    If lngAnzahl = 1 Then
        lngAnzahl = 2
    Else
        lngAnzahl = 3
    Else
        lngAnzahl = 4
    End If
End Sub
