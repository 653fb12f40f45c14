'= Modul Vorhanden
Option Compare Database
Option Explicit
Private mAnzahl As Long
'= Modul Vergessen    '! Deklarationen "Option Explicit" fehlt"
Option Compare Database
Private mAnzahl As Long
'= Klasse BeginntMitProzedur    '! Deklarationen
Public Sub Prüfen()
    ' Option Explicit
End Sub
'= Modul OhneZeilen
'= Formular NurImKommentar    '! Deklarationen
' Option Explicit
Private mText As String ' Option Explicit
'= Dokument NurImRem    '! Deklarationen
Rem Option Explicit
Option Compare Database: Rem Option Explicit
'= Modul NurInText    '! Deklarationen
Private Const cMeldung = "Option Explicit"
'= Modul AlsName    '! Deklarationen
Private Explicit As Long
Public Option1 As Long, OptionExplicit As Long
'= Modul Fortgesetzt
Option _
    Explicit
'= Modul KommentarFortgesetzt    '! Deklarationen
' Früher stand hier: Option _
Option Explicit
'= Modul ZuerstErwähnt
' Explicit steht unten, Option Explicit ist Pflicht.
Private Const cHinweis = "Explicit", cÄnderung = 1
Option Explicit
'= Modul HinterDoppelpunkt
Option Compare Text: Option Explicit
'= Modul NachDerDeklaration    '! Deklarationen
Option Base 1
Public Sub Später()
    Debug.Print "Option Explicit"
End Sub
'= Modul NurKommentar    '! Deklarationen
' Nichts weiter.
