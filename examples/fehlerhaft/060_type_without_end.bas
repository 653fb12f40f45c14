Option Explicit

Private Type TPunkt
    X As Long
    Y As Long

Public Sub Laden()
    Debug.Print "laden"
End Sub
