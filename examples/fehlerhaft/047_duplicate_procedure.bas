Option Explicit

Public Sub Laden()
    Debug.Print "laden"
End Sub

Private Function LADEN() As Long
    LADEN = 1
End Function
