Option Explicit

#If VBA7 Then
Private mlngZeiger As LongPtr

Public Sub Laden()
    Debug.Print "laden"
End Sub
