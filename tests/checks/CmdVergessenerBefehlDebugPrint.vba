'= Modul Ausgaben
Option Explicit
Private Const cText = "Debug.Print"
Public Sub Schreiben()
    Debug.Print "x" '! Schreiben "Vergessener Befehl: Debug.Print"
    Print #1, "Debug.Print x"
    Me.Print: Drucker.Print "x"
    Debug.Print: Debug.Print '! Schreiben '! Schreiben
    Debug. _
        Print "Größe" '! Schreiben
    Debug _
        .Print "y"
    MeinDebug.Print "x" '! Schreiben
    ' Debug.Print x
    Rem Debug.Print x
    Beep: Rem Debug.Print x
    ' Fortgesetzt _
      Debug.Print x
    If True Then Debug.Print "'" ' Debug.Print '! Schreiben
    Debug.Assert Print1 = PrintÄ
    Debug.PrintAll
    Call Ausgabe.Debug.Print("x") '! Schreiben
    Printer.Print DebugText
End Sub
'= Klasse Ampel
Public Sub Print_()
Debug.Print '! Print_
    Print #1, Tab(5); "Ä"; Spc(3); DebugText
End Sub
