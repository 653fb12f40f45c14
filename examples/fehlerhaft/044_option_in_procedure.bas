Public Sub Pruefen()
    Option Explicit
    Debug.Print "laden"
End Sub
