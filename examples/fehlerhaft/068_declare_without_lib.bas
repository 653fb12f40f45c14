Option Explicit

Private Declare PtrSafe Sub Sleep "kernel32" (ByVal lngDauer As Long)
