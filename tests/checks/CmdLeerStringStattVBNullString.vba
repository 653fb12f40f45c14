'= Modul Leertexte
Option Explicit
Private Const cLeer = "" '! - """ statt vbNullString verwendet."
Private Const cVoll = "x", cZitat = """", cPaar = "a""b"
' Private Const cAlt = ""
Public Sub Prüfen(Optional ByVal s As String = "") '! Prüfen "vbNullString"
    s = "": s = "" '! Prüfen '! Prüfen
    If s = "" And cLeer = "" Then s = "x" ' "" '! Prüfen '! Prüfen
    s = """": s = """x""": s = "a""b"
    s = "sagt ""ja""" & "" '! Prüfen
    Debug.Print "x" & "", """", "" '! Prüfen '! Prüfen
    ' s = ""
    Rem s = ""
    Beep: Rem s = ""
    ' Fortgesetzt: _
      s = ""
    s = vbNullString & " " & "'" & "" '! Prüfen
    Call Ändern("", "") '! Prüfen '! Prüfen
    s = "x" & _
        "" & _ '! Prüfen
        "y"
    s = """""": s = """""x"
    s = "a" & """" & "b" & """ & """
End Sub
Public Property Let Größe(Optional ByVal Wert As String = "x", ByVal Neu As String)
    If Wert <> "" Then mGröße = "" Else mGröße = "'""" '! Größe '! Größe
End Property
'= Klasse Zweite
Public Sub Ändern(a, b)
    a = b & "": b = "" ' nicht ""ganz"" '! Ändern '! Ändern
End Sub
