Option Explicit

Public Sub Pruefen()
    Dim lngArt As Long
    Select lngArt
        Case 1
            Debug.Print "eins"
    End Select
End Sub
