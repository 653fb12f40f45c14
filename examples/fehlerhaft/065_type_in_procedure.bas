Option Explicit

Public Sub Pruefen()
    Type TPunkt
        X As Long
    End Type
    Debug.Print 1
End Sub
