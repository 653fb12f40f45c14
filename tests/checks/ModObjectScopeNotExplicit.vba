'= Klasse Bestellung
Option Explicit
Dim mNummer As Long, mGröße$ '! Deklarationen "'mNummer'" '! Deklarationen "'mGröße$'"
Private mOrt As String
Const cStandard = "a, b", cZweiter As Long = 2 '! Deklarationen "'cStandard'" '! Deklarationen "'cZweiter'"
Private Const cRabatt = 3
Event Geändert(ByVal Feld As String) '! Deklarationen "'Geändert'"
Public Event Gelöscht()
Enum Zustand '! Deklarationen "'Zustand'"
    Offen
    Bezahlt
End Enum
Public Enum Währung
    Euro
End Enum
Private WithEvents mForm As Form
'= Modul Allerlei
Type Adresse ' Straße und Ort '! Deklarationen "'Adresse'"
    Straße As String
    Dim1 As Long
End Type
Private Type Person
    Name As String
End Type
Declare PtrSafe Function GetTickCount Lib "kernel32" () As Long '! Deklarationen "'GetTickCount'"
Declare PtrSafe Sub Sleep Lib "kernel32" (ByVal ms As Long) '! Deklarationen "'Sleep'"
Private Declare PtrSafe Sub Beep2 Lib "kernel32" ()
Public Declare PtrSafe Function GetDesktopWindow Lib "user32" () As LongPtr
Global gZähler As Long
Dim a: Dim b As Long '! Deklarationen "'a'" '! Deklarationen "'b'"
Dim mErste As Long, _ '! Deklarationen "'mErste'"
    mZweite As Long '! Deklarationen "'mZweite'"
' Dim mAlt As Long
Rem Const cAlt = 1
Private mNeu As Long: Const cNeu = 1 '! Deklarationen "'cNeu'"
#If Win64 Then
Const cBreite = 8 '! Deklarationen "'cBreite'"
#Else
Const cBreite = 4 '! Deklarationen "'cBreite'"
#End If
#Const TEST = 1
Private Enum Ebene
    Oben
End Enum
Public Type Ort
    Type As Long
End Type
Public gOffen As Long
Public Const gFest = 1
Global Const gAlt = 2
Public Sub Lokal()
    Dim lngLokal As Long
    Const cLokal = 1
End Sub
'= Modul Schnittstelle
Private Declare Function EigeneAltF Lib "kernel32" () As Long
Private Declare PtrSafe Function EigeneNeuF Lib "kernel32" () As Long
Public Declare Function FremdeAltF Lib "kernel32" () As Long
Public Declare PtrSafe Function FremdeNeuF Lib "kernel32" () As Long
Declare Function FreieAltF Lib "kernel32" () As Long '! Deklarationen "'FreieAltF'"
Declare PtrSafe Function FreieNeuF Lib "kernel32" () As Long '! Deklarationen "'FreieNeuF'"
Private Declare Sub EigeneAltS Lib "kernel32" ()
Private Declare PtrSafe Sub EigeneNeuS Lib "kernel32" ()
Public Declare Sub FremdeAltS Lib "kernel32" ()
Public Declare PtrSafe Sub FremdeNeuS Lib "kernel32" ()
Declare Sub FreieAltS Lib "kernel32" () '! Deklarationen "'FreieAltS'"
Declare PtrSafe Sub FreieNeuS Lib "kernel32" () '! Deklarationen "'FreieNeuS'"
