Option Explicit

Public Sub Laden()
    Debug.Print "laden"
End Sub

Private mlngAnzahl As Long
