Option Explicit

Public Sub Pruefen()
    Dim lngArt As Long
    Select Case lngArt
        Debug.Print "vorher"
        Case 1
            Debug.Print "eins"
    End Select
End Sub
