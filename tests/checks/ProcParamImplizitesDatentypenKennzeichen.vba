'= Modul Kennzeichen
Option Explicit
Public Sub Erste(a$, b As Long, c%, Optional d!) '! Erste "Parameter 'a$'" '! Erste "'c%'" '! Erste "'d!'"
End Sub
Public Sub Zweite(ByVal Länge&, ByRef Summe#, Betrag@) '! Zweite "'Länge&'" '! Zweite "'Summe#'" '! Zweite "'Betrag@'"
End Sub
Public Sub Standard(Optional a As String = "b$", Optional c = "x$, y$", Optional d$ = "") '! Standard "'d$'"
End Sub
Public Sub Felder(a$(), b() As String, c) '! Felder "'a$'"
    Dim strLokal$
End Sub
Private Sub Befehl1_Klick(Wert$) '! Befehl1_Klick "'Wert$'"
End Sub
Public Property Get Eintrag(Nr%) As String '! Eintrag "'Nr%'"
End Property
Public Property Let Eintrag(Nr%, Neu$) '! Eintrag "'Nr%'" '! Eintrag "'Neu$'"
End Property
'! Umbruch "'b$'"

' a$ in a comment
Public Sub Umbruch(ByVal a As String, _
    b$)
End Sub
Public Function Name$(ByVal x As Long)
    Name$ = "x$"
End Function
Public Function Kommentar(ByVal x As Long) As String ' y$, z$
End Function
Public Sub Ohne()
End Sub
Public Sub Einzeiler(s$): Debug.Print s$: End Sub '! Einzeiler "'s$'"
Public Sub Letzte(ByRef s$) ' Ende '! Letzte "'s$'"
End Sub
