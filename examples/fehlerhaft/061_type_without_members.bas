Option Explicit

Private Type TLeer
End Type
