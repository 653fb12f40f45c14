Option Explicit

Public Sub Pruefen()
    Dim lngArt As Long
    Select Case lngArt
        Case 1 To
            Debug.Print "eins"
    End Select
End Sub
