Option Explicit

Public Sub Pruefen()
    MsgBox "Fertig" vbInformation
End Sub
