Option Explicit

Public Sub Laden()
    Debug.Print "laden"

Public Sub Speichern()
    Debug.Print "speichern"
End Sub
