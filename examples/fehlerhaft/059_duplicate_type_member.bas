Option Explicit

Private Type TPunkt
    X As Long
    Y As Long
    x As Long
End Type
