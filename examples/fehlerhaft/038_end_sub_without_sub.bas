Option Explicit

Public Sub Laden()
    Debug.Print "laden"
End Sub

End Sub
