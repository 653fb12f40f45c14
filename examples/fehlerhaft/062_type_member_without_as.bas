Option Explicit

Private Type TPunkt
    X Long
    Y As Long
End Type
