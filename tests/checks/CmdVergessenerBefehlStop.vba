'= Modul Testreste
Option Explicit
Private Const cStop = "Stop"
Public Sub Laden()
    Stop: Stop '! Laden "Vergessener Befehl: "Stop"" '! Laden
    Debug.Print "Stop" ' Stop
    If True Then Stop Else Stop ' Stop '! Laden '! Laden
    Stopped = Full_Stop + Stop0 + ÄStop + Stop9
    Timer.Stop '! Laden
    ' Stop
    Rem Stop
    Beep: Rem Stop
    Debug.Print "a""b": Stop '! Laden
    Debug.Print "it's": Stop '! Laden
    ' Fortgesetzt _
      Stop
    Debug.Print "Stop", _
        "x": Stop '! Laden
    Call Stop_: Reset: Stop '! Laden
    Debug.Print "Stop ' Stop": Beep ' "Stop
StopMarke:
    Beep: Stop ' "x" '! Laden
End Sub
Private Sub Stop_()
Ende: Stop '! Stop_
End Sub
'= Modul Ausgenommen
Option Explicit

' Zentlor:Ignore. The head reaches down to the first header.
Public Sub Halten()
    Stop
End Sub
'= Modul AusgenommenDurchText
Private Const cMarke = "Zentlor:Ignore"
Public Sub Halten()
    Stop
End Sub
'= Modul NichtAusgenommen
Public Sub Halten() ' Zentlor:Ignore
    Stop ' Zentlor:Ignore '! Halten
End Sub
'= Klasse Ampel
Public Property Get Größe() As Long
    Select Case Größe
        Case 1: Stop '! Größe
        Case Else
            Remark: Stop '! Größe
    End Select
    Beep: Remark: Stop
End Property
