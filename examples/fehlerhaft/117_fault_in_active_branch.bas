Option Explicit

Public Sub Laden()
#If VBA7 Then
    Debug.Print ("neu"
#Else
    Debug.Print 1
#End If
End Sub
