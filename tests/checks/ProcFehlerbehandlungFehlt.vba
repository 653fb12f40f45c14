'= Modul Vorgänge
Option Explicit
Public Sub Ohne() '! Ohne "Fehlerbehandlung fehlt."
    Error 5
End Sub
'! NurDavor "(Nur als Kommentar)"
' On Error GoTo Fehler
Public Sub NurDavor()
    Beep
End Sub
Public Sub Mit()
    On Error GoTo Fehler
    Beep
Fehler:
End Sub
Public Sub Weiter()
    If True Then On Local Error Resume Next
End Sub
Public Sub NurKommentar() '! NurKommentar "(Nur als Kommentar)"
    ' On Error Resume Next
End Sub
Public Sub NurText() '! NurText "Fehlerbehandlung fehlt."
    Debug.Print "On Error GoTo 0"
End Sub
Public Sub Fortgesetzt()
    On _
        Error GoTo 0
End Sub
Public Sub KommentarDannCode()
    ' On Error GoTo Ende
    Debug.Print "x": On Error GoTo Ende
Ende:
End Sub
Public Sub Andere(ByVal Error1 As Long) '! Andere "(Nur als Kommentar)"
    Debug.Print Err.Number, Error$(5), Error(5), Error1
    Rem On Local Error GoTo Ende
    Debug.Print 1: Rem On Error GoTo 0
End Sub
Public Sub InText() '! InText "Fehlerbehandlung fehlt."
    Debug.Print "' On Error": Debug.Print "On Error '"
End Sub
Public Property Get Größe() As Long
    On Error Resume Next
End Property
Public Property Let Größe(ByVal Wert As Long) '! Größe "Fehlerbehandlung fehlt."
End Property
Public Sub Einzeiler(): On Error Resume Next: End Sub '! Einzeiler
Private Sub Form_Load() '! Form_Load "Fehlerbehandlung fehlt."
    Dim strOnError As String
End Sub
'= Klasse Letzte
Public Sub Schluss() '! Schluss
    Beep
End Sub
Public Sub NurLetzteZeile(): Beep: End Sub
