Option Explicit

Private mlngZeiger As Long
#End If

Public Sub Laden()
    Debug.Print "laden"
End Sub
