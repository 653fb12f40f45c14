Option Compare Database
Option Explicit
Option Explicit

Public Sub Laden()
    Debug.Print "laden"
End Sub
