Option Explicit

Public Sub Laden()
    Debug.Print "laden"
