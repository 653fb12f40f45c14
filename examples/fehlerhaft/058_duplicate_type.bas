Option Explicit

Private Type TPunkt
    X As Long
    Y As Long
End Type

Private Type TPunkt
    X As Double
End Type
