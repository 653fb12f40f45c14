'= Modul Zeichensatz
Option Explicit
DefBool B '! Deklarationen "(DefBool)"
DefByte Y '! Deklarationen "(DefByte)"
DefInt I-K '! Deklarationen "(DefInt)"
DefLng L, Z '! Deklarationen "(DefLng)"
DefCur C '! Deklarationen "(DefCur)"
DefSng F: DefDbl D '! Deklarationen "(DefSng)" '! Deklarationen "(DefDbl)"
DefDec M '! Deklarationen "(DefDec)"
DefDate T '! Deklarationen "(DefDate)"
DefStr S ' DefObj O '! Deklarationen "(DefStr)"
DefObj O: DefVar V: Rem DefBool B '! Deklarationen "(DefObj)" '! Deklarationen "(DefVar)"
' DefInt A-Z
Rem Alt: DefInt A-Z
' Fortgesetzt: _
DefInt A-Z
Private Defekt As Long, Undefiniert As String
'= Modul Fortgesetzt
Option Explicit: DefStr _ '! Deklarationen "(DefStr)"
    S, _
    T
DefLng _ '! Deklarationen "(DefLng)"
    A-K
Private Const cText = "x: DefInt A-Z"
Public Sub Rechnen()
    ' DefInt A-Z
    Debug.Print "DefInt A-Z"
End Sub
'= Modul Ähnlich
Private mDefInt As Long, DefIntX As Long
Private Enum Richtung
    DefLngWert
End Enum
DefInt A-Z '! Deklarationen "(DefInt)"
Public Sub Danach()
End Sub
'= Klasse OhneKopf
Public Sub Nichts()
End Sub
