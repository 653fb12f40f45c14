Option Explicit

Public Sub Pruefen()
    Declare PtrSafe Sub Sleep Lib "kernel32" (ByVal lngDauer As Long)
    Sleep 10
End Sub
