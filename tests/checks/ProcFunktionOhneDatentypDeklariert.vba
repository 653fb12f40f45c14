'= Klasse Funktionen
Option Explicit
Public Function Ohne() '! Ohne "Funktion ohne Datentyp deklariert."
End Function
Public Function Mit() As Long
End Function
Private Function Privat(ByVal a As Long) '! Privat
End Function
Function Nackt(b) '! Nackt
End Function
Friend Function Freund()
End Function
Static Function Fest()
End Function
Public Static Function PublicFest()
End Function
Public Function Kommentar() ' liefert nichts
End Function
Public Function Zeichen$() '! Zeichen
End Function
Public Function Liste() As String()
End Function
Public Function Feld(Werte() As Long) '! Feld
End Function
Public Function Verschachtelt(Optional a As Long = (1 + (2))) '! Verschachtelt
End Function
Public Function Klammer(Optional s As String = ")")
End Function
Public Function Offen(Optional s As String = "(")
End Function
'! Umbruch

' The whole header counts, not its first line.
Public Function Umbruch(ByVal a As Long, _
    ByVal b As Long)
End Function
Public Function UmbruchMitTyp(ByVal a As Long) _
    As Long
End Function
Public _ '! Geteilt
    Function Geteilt(ByVal a As Long)
End Function
Public Function Doppelpunkt(): Beep: End Function
Public Sub Prozedur()
End Sub
Public Property Get Größe()
End Property
Public Property Let Größe(Wert)
End Property
Private Function Befehl1_Klick(a) '! Befehl1_Klick
End Function
