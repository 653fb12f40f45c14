Option Explicit

Private mlngAnzahl As Long
mlngAnzahl = 5

Public Sub Laden()
    mlngAnzahl = 1
End Sub
