'= Modul Befehle
Option Explicit
Private a As Long: Private b As Long
Public Sub Rechnen()
    a = 1: b = 2 '! Rechnen "Mehrere Befehle durch Doppelpunkt getrennt"
    a = 1: b = 2: a = 3 '! Rechnen '! Rechnen
    Debug.Print "a: b", "x:y"
    ' Kommentar: mit Doppelpunkt
    Rem Kommentar: mit Doppelpunkt
    a = 1 ' Kommentar: mit Doppelpunkt
    a = 1: Rem Kommentar: weiter '! Rechnen
Marke:
Ende: Beep '! Rechnen
    Call Zeigen(Text:="x: y", Wert:=5)
    If a = 1 Then b = 2: a = 3 Else b = 4: a = 5 '! Rechnen '! Rechnen
    Select Case a
        Case 1: Beep '! Rechnen
        Case 2:
            Beep
    End Select
    Debug.Print "it's: x": Beep ' Größe: 5 '! Rechnen
    Debug.Print #1/1/2024 12:30:00 PM#
    ' Fortgesetzt _
      a: b
    Debug.Print "a", _
        "b": Beep '! Rechnen
    Debug.Print "sagt ""ja: nein"" ": Beep: Beep '! Rechnen '! Rechnen
End Sub
Public Sub Einzeiler(): Beep: End Sub '! Einzeiler '! Einzeiler
Public Sub Standard(Optional ByVal Text As String = "Größe: ")
End Sub
'= Klasse Ohne
Dim a: Dim b
Private Sub Class_Initialize()
Start:
End Sub
