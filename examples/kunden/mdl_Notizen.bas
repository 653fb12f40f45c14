Attribute VB_Name = "mdl_Notizen"
Option Compare Database
Option Explicit

' Offene Punkte
' - Sammelrechnung für Wiederverkäufer (Frau Öttinger fragt nach)
' - Lieferadresse je Bestellung
' - Skonto im Export

Rem Erledigtes steht im Protokoll der Besprechungen.
