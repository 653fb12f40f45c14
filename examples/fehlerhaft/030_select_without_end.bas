Option Explicit

Public Sub Pruefen()
    Dim lngArt As Long
    Select Case lngArt
        Case 1
            Debug.Print "eins"
End Sub
