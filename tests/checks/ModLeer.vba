'= Modul GanzOhneZeilen    '! Allgemein "Modul ist leer"
'= Klasse NurOptionen    '! Allgemein
Option Compare Database
Option Explicit
'= Formular NurKommentare    '! Allgemein
' Hier stand früher einmal Code.
Rem Auch das ist ein Kommentar.
Rem

    ' Eingerückt zählt er ebenso.
'= Dokument LeereZeilen    '! Allgemein


'= Modul OptionenUndKommentare    '! Allgemein
Option Compare Database ' Vorgabe

'Option Private Module
    Option Explicit
'= Modul EineVariable
Option Explicit
Private x As Long
'= Modul EineProzedur
Public Sub Nichts()
End Sub
'= Modul ProzedurHinterKommentar
Option Explicit
' Only comments in the head, but a procedure behind it.
Private Sub Leer()
End Sub
'= Modul NurDirektive
Option Explicit
#Const TESTLAUF = 1
'= Modul NurDefType
DefLng A-Z
'= Modul FortgesetzterKommentar
' Physical lines are read: the second one _
  carries no comment mark of its own.
'= Modul Ausgenommen
' Zentlor:Ignore
'= Modul NichtAusgenommen    '! Allgemein
' zentlor:ignore and Zentlor:IgnoreX are no marker.
