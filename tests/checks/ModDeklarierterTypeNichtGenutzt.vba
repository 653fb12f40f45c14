'= Modul Sätze
Option Explicit
Private Type Adresse
    Straße As String
End Type
Private Type Kunde '! Deklarationen "'Kunde': deklariert aber nicht verwendet."
    Wohnort As Adresse
    KundeNr As Long
End Type
Public Type Artikel
    Type As Long
    Preis As Currency
End Type
Public Type Lieferung '! Deklarationen "'Lieferung': deklariert aber nicht verwendet. (Nur als Kommentar)"
    Menge As Long ' Stück
End Type
Type Öffnung
    Beginn As Date
End Type
Private Type Rückgabe
    Grund As String
End Type
Private mFrüher As Retoure
Private Type Retoure '! Deklarationen "'Retoure'"
    Grund As String
End Type
Private mText As String ' As Kunde2
Private Function Prüfen() As Rückgabe
    Debug.Print "Kunde", "Öffnung"
    ' Kunde1, Kunde_x
End Function
'= Klasse Regal
Type Fach ' private in a class, public elsewhere '! Deklarationen "'Fach'"
    Breite As Long
End Type
'= Klasse Lager
Private Type Adresse ' the other module's twin does not count here '! Deklarationen "'Adresse'"
    Postfach As String
End Type
' Lieferung folgt
Public Sub Buchen()
    Dim udtArtikel As Artikel: Rem As Lieferung
    Debug.Print udtArtikel.Preis
    Dim udtÖffnung As Öffnung, Fach As Long
End Sub
