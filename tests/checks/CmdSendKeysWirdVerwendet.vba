'= Modul Tasten
Option Explicit
Private Const cSendKeys = "SendKeys"
Public Sub Drücken()
    SendKeys "{ENTER}", True '! Drücken "SendKeys wird verwendet"
    Application.SendKeys "^c" ' SendKeys '! Drücken
    If True Then SendKeys "a": SendKeys "SendKeys" '! Drücken '! Drücken
    ' SendKeys "x"
    Rem SendKeys "x"
    Beep: Rem SendKeys "x"
    SendKeys2 "x": Keys.SendKeys_Neu "x": ÄSendKeys
    WshShell. _
        SendKeys "x" '! Drücken
    ' Fortgesetzt _
      SendKeys "x"
    Debug.Print "'", "SendKeys": Call SendKeys("x") '! Drücken
End Sub
Public Sub SendKeys(ByVal Text As String)
    Call VBA.SendKeys(Text) '! SendKeys
End Sub
Public Sub Übertragen(ByVal Text As String, _
    ByVal SendKeys As Boolean) '! Übertragen
End Sub
Public Sub Einzeiler(): SendKeys "x": End Sub
Private Sub Form_Load()
Ende: SendKeys "%{F4}" '! Form_Load
End Sub
