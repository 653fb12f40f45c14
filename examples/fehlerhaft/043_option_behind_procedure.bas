Public Sub Laden()
    Debug.Print "laden"
End Sub

Option Explicit
