Option Explicit

Public Sub Laden()
    Debug.Print "laden"
End Sub

Debug.Print "verloren"
