'= Klasse Zähler
Option Explicit
Public Event Gestartet()
Event Geändert(ByVal Wert As Long)
Public Event Gestoppt() '! Deklarationen "'Gestoppt': deklariert aber nicht 'gefeuert'."
Public Event Vergessen() '! Deklarationen "'gefeuert'. (Nur als Kommentar)"
Public Event Übersehen(a As Long, _ '! Deklarationen "'Übersehen': deklariert aber nicht 'gefeuert'. (Nur als Kommentar)"
    b As Long)
Public Event ImText() '! Deklarationen "'ImText': deklariert aber nicht 'gefeuert'."
Public Event Start() '! Deklarationen "'Start': deklariert aber nicht 'gefeuert'."
Public Event Fern() '! Deklarationen "'Fern'"
Private mWert As Long
Public Sub Erhöhen()
    mWert = mWert + 1
    RaiseEvent Geändert(mWert)
    If mWert = 1 Then RaiseEvent Gestartet
    ' RaiseEvent Vergessen
    Debug.Print "RaiseEvent ImText"
    ' RaiseEvent Übersehen(1, 2)
    Call Gestoppt2
    mWert = 1: Rem RaiseEvent Übersehen(1, 2)
End Sub
Private Sub Gestoppt2()
    Debug.Print "Gestoppt", mWert
End Sub
'= Formular Maske
Public Event Geschlossen()
Private WithEvents mZähler As Zähler
Private Sub mZähler_Fern()
    ' RaiseEvent Fern belongs to the other class: another module raises nothing for it.
    Debug.Print "Fern"
End Sub
'= Klasse Fremder
Public Event Eigenes() '! Deklarationen "'Eigenes'"
'= Klasse Nachbar
Public Event Eigenes()
Public Sub Feuern()
    RaiseEvent Eigenes
End Sub
