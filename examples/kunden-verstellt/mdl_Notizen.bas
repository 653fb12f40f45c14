Attribute VB_Name = "mdl_Notizen"
OPTION  Compare Database   
Option  explicit

' Offene Punkte
' - Sammelrechnung für Wiederverkäufer (Frau Öttinger fragt nach)
' - Lieferadresse je Bestellung
' - Skonto im Export

Rem Erledigtes steht im Protokoll der Besprechungen.
