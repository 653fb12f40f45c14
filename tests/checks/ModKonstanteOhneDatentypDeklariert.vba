'= Modul Konstanten
Option Explicit
Private Const cOhne = 1 '! Deklarationen "Konstante 'cOhne' Datentyp nicht deklariert."
Private Const cMit As Long = 1
Public Const A = 1, B As String = "x, y", C = "As Long" '! Deklarationen "'A'" '! Deklarationen "'C'"
Global Const gÜber = 2, gText$ = "a" '! Deklarationen "'gÜber'"
Const cKurz% = 1, cBreit    As Long = 5, cSumme = 1 + 2 '! Deklarationen "'cSumme'"
Private Const cDoppelpunkt = "a:b, c", cNach = 5 '! Deklarationen "'cDoppelpunkt'" '! Deklarationen "'cNach'"
Private Const cZitat As String = "sagt ""a, b""", cEnde = "'" '! Deklarationen "'cEnde'"
Private Const cErste As Long = 1, _
    cZweite = 2 '! Deklarationen "'cZweite'"
Private Const cGeteilt _
    As Long = 3
Private Const cLinks As Long = 1: Const cRechts = 2 '! Deklarationen "'cRechts'"
Private Const cKommentar = 1 ' As Long '! Deklarationen "'cKommentar'"
' Private Const cAlt = 1
Rem Alt: Private Const cAlt = 1
#Const TESTLAUF = 1
#If TESTLAUF Then
Private Const cTest = 1 '! Deklarationen "'cTest'"
#Else
Private Const cTest As Long = 0
#End If
Private mConst, mWert As Long
Private Enum Art
    Erste = 1
End Enum
Public Sub Lokal()
    Const cLokal = 1
End Sub
'= Klasse Grenzwerte
Private Const cObergrenze& = 5, cLänge = &H10 '! Deklarationen "'cLänge'"
