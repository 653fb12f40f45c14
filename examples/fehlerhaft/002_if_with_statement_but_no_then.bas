Option Explicit

Public Sub Pruefen()
    Dim lngAnzahl As Long
    If lngAnzahl > 3 MsgBox "Zu viele"
    lngAnzahl = 0
End Sub
