Option Explicit

Public Sub Pruefen()
    10  Debug.Print 1
    20  GoTo 30
End Sub
