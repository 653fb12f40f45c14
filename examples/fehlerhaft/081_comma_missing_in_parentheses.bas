Option Explicit

Public Sub Pruefen()
    Dim lngAntwort As Long
    lngAntwort = MsgBox("Weiter?" vbYesNo)
End Sub
