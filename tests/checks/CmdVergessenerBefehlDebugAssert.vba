'= Modul Annahmen
Option Explicit
Public Sub Prüfen(ByVal Wert As Long)
    Debug.Assert Wert > 0 '! Prüfen "Vergessener Befehl: Debug.Assert"
    Debug.Print Wert
    Debug. _
        Assert Wert < 5 '! Prüfen
    Debug _
        .Assert False
    Test.Assert Wert: Assert Wert
    If Wert = 1 Then Debug.Assert True: Debug.Assert False '! Prüfen '! Prüfen
    Debug.Print "Debug.Assert", "'": Debug.Assert True ' Debug.Assert '! Prüfen
    ' Debug.Assert False
    Rem Debug.Assert False
    Beep: Rem Debug.Assert False
    ' Fortgesetzt: _
      Debug.Assert False
    Debug.AssertEqual Wert, AssertÄ
End Sub
Public Sub Assert(ByVal Bedingung As Boolean)
Debug.Assert Bedingung '! Assert
End Sub
'= Klasse Ohne
Private mAssert As Boolean
Private Sub Class_Initialize()
    Test.Debug_Assert mAssert
End Sub
