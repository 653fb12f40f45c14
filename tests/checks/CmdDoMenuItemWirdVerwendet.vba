'= Formular Hauptmaske
Option Explicit
Private Const cDoMenuItem = "DoMenuItem"
Private Sub Befehl1_Click()
    DoCmd.DoMenuItem acFormBar, acRecordsMenu, 5, , acMenuVer70 '! Befehl1_Click "Es wird 'DoMenuItem' verwendet"
    DoCmd. _
        DoMenuItem 1, 2, 3 '! Befehl1_Click
    DoCmd.RunCommand acCmdSaveRecord
    ' DoCmd.DoMenuItem 1, 2, 3
    Rem DoCmd.DoMenuItem 1, 2, 3
    Beep: Rem DoMenuItem
    Debug.Print "DoMenuItem", "'": DoMenuItem 1: DoMenuItem 2 '! Befehl1_Click '! Befehl1_Click
    DoMenuItems = DoMenuItem_1 + DoMenuItemÄ
    ' Fortgesetzt _
      DoMenuItem 1
End Sub
Public Sub DoMenuItem(ByVal Größe As Long)
    If Größe > 1 Then DoMenuItem Größe - 1 '! DoMenuItem
End Sub
Public Sub Umweg(ByVal Erster As Long, _
    ByVal DoMenuItem As Long) '! Umweg
    Debug.Print Erster
End Sub
' DoMenuItem
Public Sub Einzeiler(): DoMenuItem 1: End Sub
Private Sub Befehl2_Click()
Marke: DoMenuItem 1 ' DoMenuItem '! Befehl2_Click
End Sub
