Option Explicit

Private Laden As Boolean

Public Sub Laden()
    Debug.Print "laden"
End Sub
