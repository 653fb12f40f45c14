'= Modul Typen
Option Explicit
Public Sub Ohne(a, b As Long, ByVal c) '! Ohne "Parameter 'a' Datentyp nicht deklariert." '! Ohne "'c'"
End Sub
Public Sub Zeichen(a$, b%, Optional ByRef c&)
End Sub
Public Sub Felder(a() As Long, b(), c) '! Felder "'b'" '! Felder "'c'"
End Sub
Public Sub Standard(Optional a = 5, Optional b As String = "x, y", Optional c = "x, y", Optional d As Long) '! Standard "'a'" '! Standard "'c'"
End Sub
Public Sub ImText(Optional a = "As ", Optional b = "Als ", Optional c = cAsText) '! ImText "'b'" '! ImText "'c'"
End Sub
Public Sub Klammer(Optional a = ")", Optional b) '! Klammer "'a'"
End Sub
Public Function Rückgabe(a) As Long '! Rückgabe "'a'"
End Function
Public Function MitKommentar(a) As Long ' x, y
End Function
Public Sub Reihe(ParamArray Werte()) '! Reihe "'Werte'"
End Sub
Public Sub ReiheMit(ParamArray Werte() As Variant)
End Sub
Private Sub Befehl1_Klick(Größe, Cancel As Integer) '! Befehl1_Klick "'Größe'"
End Sub
Public Property Get Eintrag(Nr) As Long '! Eintrag "'Nr'"
End Property
Public Property Let Eintrag(Nr As Long, Neu) '! Eintrag "'Neu'"
End Property
'! Umbruch "'Zweiter'" '! Umbruch "'Vierter'"
' The line of the finding is the first one behind the procedure before.
Public Sub Umbruch(ByVal Erster As Long, _
    Zweiter, Dritter _
    As Long, Optional ByVal _
    Vierter)
End Sub
Public Sub OhneParameter()
    Dim a, b
End Sub
#If VBA7 Then '! Wahl "'Griff'"
Public Sub Wahl(ByVal Griff)
#Else
Public Sub Wahl(ByVal Alt)
#End If
End Sub
'= Klasse Ausrichtung
Public Sub Spalten(a   As Long, AsWert, b  As AsWert2, Letzter) '! Spalten "'AsWert'" '! Spalten "'Letzter'"
End Sub
