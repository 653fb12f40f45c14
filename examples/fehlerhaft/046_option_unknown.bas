Option Strict On

Public Sub Laden()
    Debug.Print "laden"
End Sub
