Option Explicit

Public Sub Pruefen()
    Then Debug.Print 1
End Sub
