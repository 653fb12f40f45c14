'= Modul Festwerte
Option Explicit
Private Const cMax As Long = 10
Private Const cListe = cMax + 1 '! Deklarationen "Konstante 'cListe': deklariert aber nicht verwendet."
Private Const cErster = 1, cZweiter = cErster '! Deklarationen "'cZweiter'"
Private Const cText$ = "a, b", cOhne% = 2 '! Deklarationen "'cOhne%': deklariert aber nicht verwendet. (Nur als Kommentar)"
Private Const cWert = 1 '! Deklarationen "'cWert': deklariert aber nicht verwendet."
Private mFeld(1 To cUnten) As Long
Private Const cUnten = 5 '! Deklarationen "'cUnten'"
Public Const gÜberall = 1
Public Const gKommentar = 2 '! Deklarationen "'gKommentar': deklariert aber nicht verwendet. (Nur als Kommentar)"
Public Const gNirgends = "gNirgends" '! Deklarationen "'gNirgends': deklariert aber nicht verwendet."
Public Const gDrüben = 3
Global Const gGlobal = 4
Const cPrivat = 5 '! Deklarationen "'cPrivat'"
#If Win64 Then
Private Const cZeiger = 8
#Else
Private Const cZeiger = 4
#End If
#Const TESTLAUF = 1
Private Const cLang As String = "eins" & _
    "zwei", _
    cHinten = 1 '! Deklarationen "'cHinten'"
Private Const cGrösse = 1: Private mGrösse(cGrösse) As Long
' Private Const cAlt = 1
Public Sub Ausgeben()
    Debug.Print cText, "cOhne", cWert1, cWert_x, gÜberall
    ' cOhne stands in a comment only
    Dim strZeiger As String * cZeiger
    Debug.Print "cWert", éWert, cLang
    Rem gKommentar
End Sub
'= Modul Anderswo
Private mDrüben(gDrüben) As Long
' gNirgends2, gKommentar
Public Sub Zeigen()
    Const cPrivat = 7
    Const cListe = 8 ' a private namesake elsewhere is not meant
    Debug.Print cPrivat, cListe: Rem gÜberall
End Sub
