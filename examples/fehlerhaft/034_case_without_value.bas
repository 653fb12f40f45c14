Option Explicit

Public Sub Pruefen()
    Dim lngArt As Long
    Select Case lngArt
        Case
            Debug.Print "eins"
    End Select
End Sub
