'= Modul Lokales
Option Explicit
Private mName$
Public Sub Rechnen(ByVal Text$)
    Const cKurz% = 1, cLang As Long = 2, cText$ = "a$, b$" '! Rechnen "Konstante 'cKurz%'" '! Rechnen "Konstante 'cText$'"
    Dim strName$, lngAnzahl As Long, lngZahl& '! Rechnen "Variable 'strName$' impilizites Datentypenkennzeichen verwendet." '! Rechnen "'lngZahl&'"
    Dim sngMaß!, dblMaß#, curBetrag@, intMenge% '! Rechnen "'sngMaß!'" '! Rechnen "'dblMaß#'" '! Rechnen "'curBetrag@'" '! Rechnen "'intMenge%'"
    Dim arrText$(5), arrZahl(3), strFest As String * 5 '! Rechnen "'arrText$'"
    strName$ = Left$("x", 1): lngZahl& = 5&
    ReDim arrNeu$(1)
    Static strFest2$
    ' Dim strAlt$
    Debug.Print "Dim strAlt$": Rem Dim strAlt$
End Sub
Private Function Name$()
    Dim lngVor As Long: Dim strNach$ '! Name "'strNach$'"
    Dim lngErste As Long, _
        strZweite$ '! Name "'strZweite$'"
    Const cOhne = 5&
    Name$ = "x"
End Function
Private Sub Form_Load()
#If Win64 Then
    Dim curGriff@ '! Form_Load "'curGriff@'"
#Else
    Dim lngGriff& '! Form_Load "'lngGriff&'"
#End If
    If curGriff > 1 Then Const cÜbrig# = 1.5 '! Form_Load "Konstante 'cÜbrig#'"
End Sub
Public Property Get Größe() As Long
    Dim strTeil$ ' $ im Kommentar '! Größe "'strTeil$'"
End Property
