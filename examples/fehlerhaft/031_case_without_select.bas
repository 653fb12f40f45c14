Option Explicit

Public Sub Pruefen()
    Dim lngArt As Long
    Case 1
        Debug.Print "eins"
End Sub
