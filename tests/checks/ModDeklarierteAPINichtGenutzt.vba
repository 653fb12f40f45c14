'= Modul Systemaufrufe
Option Explicit
Private Declare PtrSafe Sub Sleep Lib "kernel32" (ByVal ms As Long)
Private Declare PtrSafe Function GetTickCount Lib "kernel32" () As Long '! Deklarationen "'GetTickCount': deklariert aber nicht verwendet."
Private Declare PtrSafe Function GetTick Lib "kernel32" Alias "GetTickCount" () As Long '! Deklarationen "verwendet. (Nur als Kommentar)"
Public Declare PtrSafe Function Öffnen Lib "shell32" (ByVal Pfad As String) As Long
Public Declare PtrSafe Sub Schließen Lib "shell32" () '! Deklarationen "'Schließen': deklariert aber nicht verwendet. (Nur als Kommentar)"
Public Declare PtrSafe Function Lesen _
    Lib "kernel32" (ByVal Puffer As String) As Long
Declare PtrSafe Sub Piepsen Lib "kernel32" Alias "Beep" (ByVal a As Long)
Private Const cName = "GetTickCount"
#If Win64 Then
Private Declare PtrSafe Function Fenster Lib "user32" () As LongPtr '! Deklarationen "'Fenster'"
#Else
Private Declare Function Fenster Lib "user32" () As Long '! Deklarationen "'Fenster'"
#End If
Private Declare PtrSafe Function Nachbar Lib "user32" () As Long '! Deklarationen "'Nachbar'"
Public Sub Warten()
    Dim FensterBreite As Long
    Sleep 100
    ' GetTick gives the milliseconds since the start.
    Debug.Print "GetTickCount", FensterBreite
    Debug.Print Lesen("x")
    ' Schließen
End Sub
'= Modul Aufrufer
Private mPiepsen As Long
Public Sub Starten()
    Dim Nachbar As Long
    If Öffnen("C:\Temp") > 32 Then Debug.Print Nachbar
    Rem Schließen
    Debug.Print EigeneAltF, EigeneNeuF, FremdeAltF, FremdeNeuF
    Debug.Print FreieAltF, FreieNeuF, EigeneAltS, EigeneNeuS
    Debug.Print FremdeAltS, FremdeNeuS, FreieAltS, FreieNeuS
End Sub
'= Modul AlleFormen
Private Declare Function EigeneAltF Lib "kernel32" () As Long '! Deklarationen "'EigeneAltF': deklariert aber nicht verwendet."
Private Declare PtrSafe Function EigeneNeuF Lib "kernel32" () As Long '! Deklarationen "'EigeneNeuF': deklariert aber nicht verwendet."
Public Declare Function FremdeAltF Lib "kernel32" () As Long
Public Declare PtrSafe Function FremdeNeuF Lib "kernel32" () As Long
Declare Function FreieAltF Lib "kernel32" () As Long
Declare PtrSafe Function FreieNeuF Lib "kernel32" () As Long
Private Declare Sub EigeneAltS Lib "kernel32" () '! Deklarationen "'EigeneAltS': deklariert aber nicht verwendet."
Private Declare PtrSafe Sub EigeneNeuS Lib "kernel32" () '! Deklarationen "'EigeneNeuS': deklariert aber nicht verwendet."
Public Declare Sub FremdeAltS Lib "kernel32" ()
Public Declare PtrSafe Sub FremdeNeuS Lib "kernel32" ()
Declare Sub FreieAltS Lib "kernel32" ()
Declare PtrSafe Sub FreieNeuS Lib "kernel32" ()
'= Modul AlleFormenUngenutzt
Public Declare Function StillOffenAltF Lib "kernel32" () As Long '! Deklarationen "'StillOffenAltF'"
Public Declare PtrSafe Function StillOffenNeuF Lib "kernel32" () As Long '! Deklarationen "'StillOffenNeuF'"
Declare Function StillBloßAltF Lib "kernel32" () As Long '! Deklarationen "'StillBloßAltF'"
Declare PtrSafe Function StillBloßNeuF Lib "kernel32" () As Long '! Deklarationen "'StillBloßNeuF'"
Public Declare Sub StillOffenAltS Lib "kernel32" () '! Deklarationen "'StillOffenAltS'"
Public Declare PtrSafe Sub StillOffenNeuS Lib "kernel32" () '! Deklarationen "'StillOffenNeuS'"
Declare Sub StillBloßAltS Lib "kernel32" () '! Deklarationen "'StillBloßAltS'"
Declare PtrSafe Sub StillBloßNeuS Lib "kernel32" () '! Deklarationen "'StillBloßNeuS'"
'= Klasse Ausgenommen
' Zentlor:Ignore: the module is not checked, but what it uses is used.
Public Sub Lärm()
    Piepsen 440
End Sub
