Option Explicit

Public Enum Farbe
    Rot "FF0000"
    Blau
End Enum
