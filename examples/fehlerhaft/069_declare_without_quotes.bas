Option Explicit

Private Declare PtrSafe Sub Sleep Lib kernel32 (ByVal lngDauer As Long)
