Option Explicit

Public Enum Farbe
    Rot = 1
    Blau = 2

Public Sub Laden()
    Debug.Print Rot
End Sub
