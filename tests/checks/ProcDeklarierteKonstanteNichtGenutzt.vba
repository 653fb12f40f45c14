'= Modul Prozeduren
Option Explicit
Private Const cModul = 1
Public Sub Rechnen()
    Const cWert = 1, cText As String = "x, cWert" '! Rechnen "Konstante 'cWert': deklariert aber nicht verwendet."
    Const cKurz% = 2, cLang& = 3 '! Rechnen "'cLang&': deklariert aber nicht verwendet. (Nur als Kommentar)"
    Const cMax As Long = 5, cFeld = cMax: Const cGrün = 7 '! Rechnen "'cFeld'" '! Rechnen "'cGrün'"
    Debug.Print cText, cKurz, "cWert"
    ' cLang
    cWert1 = cWert_x
    Rem Const cAlt = 1
    Debug.Print "Const cAlt = 1", "cGrünÜ"
    #Const TESTLAUF = 1
    cGrünÜ = 1
End Sub
Public Function Davor() As Long
    Davor = cSpät
    Const cSpät = 1 '! Davor "'cSpät'"
    If Davor > 1 Then Const cMitten = 2 '! Davor "'cMitten'"
    Const cHier = "Const cDort = 1" '! Davor "'cHier': deklariert aber nicht verwendet. (Nur als Kommentar)"
    Dim cDim As Long: Rem cHier
End Function
Public Sub Fremd()
    Debug.Print cGrün, cDrüben
    Const cErste As Long = 1, _
        cZweite As Long = 2 '! Fremd "'cZweite'"
    Debug.Print cErste: Const cLetzte = 1: Debug.Print cLetzte
    Const cConst = 1, _
        cHinten = cConst + cConst '! Fremd "'cHinten'"
End Sub
Public Property Get Größe() As Long
#If VBA7 Then
    Const cDrüben = 8
#Else
    Const cDrüben = 4
#End If
    Größe = cDrüben
End Property
Public Property Let Größe(ByVal Wert As Long)
    Const cDrüben = 8 '! Größe "'cDrüben'"
End Property
