'= Modul Aufzählungen
Option Explicit
Private Enum Farbe
    Rot = 1
    Grün
End Enum
Private Enum Größe '! Deklarationen "'Größe': deklariert aber nicht verwendet."
    Klein
    Groß
End Enum
Public Enum Richtung ' nur die Mitglieder sind in Gebrauch '! Deklarationen "'Richtung'"
    Links
    Rechts
End Enum
Public Enum Zustand
    Offen
End Enum
Enum Gebiet '! Deklarationen "'Gebiet': deklariert aber nicht verwendet. (Nur als Kommentar)"
    Nord ' End enum
    Süd
End Enum
Private mOben As Ebene
Private Enum Ebene '! Deklarationen "'Ebene'"
    Erste
End Enum
Private Enum Kurz: Eins: End Enum '! Deklarationen "'Kurz'"
Private Type Bild
    Ton As Farbe
End Type
Private Enum Stufe: Tief: Hoch: End Enum: Private mStufe As Stufe
Public Sub Zeigen()
    Dim lngRichtung As Long, GrößeNeu As Long
    lngRichtung = Links
    ' Gebiet: siehe Karte
    Debug.Print "Größe", Klein, "Gebiet"
End Sub
'= Klasse Karte
Private Enum Größe
    Winzig
End Enum
Private mGröße As Größe
Private mZustand As Zustand
Private mGebiet_Alt As Long
' Richtung1 and Richtung_ are other words.
