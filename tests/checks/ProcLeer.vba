'= Modul Prozeduren
Option Explicit
Private Remark As Long, mGröße As Long
Public Sub Leer() '! Leer "Prozedur ist leer"
End Sub
'! NurKommentar
' A comment in front of a header belongs to the procedure below it.
Private Sub NurKommentar()

    ' Nichts
    Rem Auch nichts
    ' Fortgesetzt _
      über zwei Zeilen
End Sub
Public Sub Inhalt()
    Beep
End Sub
Public Function Zurück() As Long '! Zurück
    ' "End " in front of any word passes as an end.
End Function
Public Sub Beenden()
    End
End Sub
Public Sub Verlassen()
    Exit Sub
End Sub
Public Sub Marke()
Ende:
End Sub
Public Sub NurDeklaration()
    Dim lngWert As Long
End Sub
Public Sub RemAllein()
    Rem
End Sub
Public Sub Bemerkung()
    Remark = 1
End Sub
Public Sub Mehrzeilig(ByVal Erster As Long, _
    ByVal Zweiter As Long)
End Sub
Public Sub Mehrzeilig3(ByVal Erster As Long, _
    ByVal Zweiter As Long, _
    ByVal Dritter As Long)
End Sub
Public Property Get Größe() As Long '! Größe
End Property
Public Property Let Größe(ByVal Wert As Long)
    mGröße = Wert
End Property
Public Property Set Größe(ByVal Wert As Object) '! Größe

End Property
Public Sub Einzeiler(): Beep: End Sub '! Einzeiler
Public Sub LetzteZeile()
Beep: End Sub
Public Sub Direktive()
#If DEBUGMODUS Then
#End If
End Sub
Public Sub NachKommentar()
    ' erst
    Beep ' dann
End Sub
'= Klasse Ganz
Private Sub Class_Initialize() '! Class_Initialize
    ' später
End Sub

' Ende der Klasse
'= Klasse NurEndeZählt
Private Sub Class_Terminate()
    EndeMarke
End Sub
Private Sub EndeMarke() '! EndeMarke
End Sub
