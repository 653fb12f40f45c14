'= Modul Lokales
Option Explicit
Private mOhne
' Dim davor
Public Sub Rechnen(Wert)
    Dim a, b As Long, c '! Rechnen "Variable 'a' Datentyp nicht deklariert." '! Rechnen "'c'"
    Dim strText$, lngZahl&, varÜbrig '! Rechnen "'varÜbrig'"
    Dim arrLeer(), arrText() As String, arrGrenze(1 To 5, 2 To 3) As Long, arrFest(5) '! Rechnen "'arrLeer'" '! Rechnen "'arrFest'"
    Dim arrBereich(UBound(a)) As Long '! Rechnen "'arrBereich'"
    Dim breit    As Long, col As New Collection
    Static varFest
    ReDim arrLeer(1)
    Dim lngVor As Long: Dim varNach '! Rechnen "'varNach'"
    Dim lngKopf As Long: ReDim arrGröße(1) '! Rechnen "'arrGröße'"
    Debug.Print "Dim x", a ' Dim y
    Rem Dim z
    Debug.Print 1: Rem Dim z
End Sub
Public Function Umbruch() As Long
    Dim lngErste As Long, _
        varZweite, _ '! Umbruch "'varZweite'"
        lngDritte _
        As Long
    Dim _
        varVierte '! Umbruch "'varVierte'"
    If Umbruch > 1 Then Dim varFünfte Else Dim varSechste '! Umbruch "'varFünfte'"
    Dim varKommentar ' As Long '! Umbruch "'varKommentar'"
    ' Fortgesetzt: _
      Dim varAlt
#If VBA7 Then
    Dim lngGriff As LongPtr
#Else
    Dim varGriff '! Umbruch "'varGriff'"
#End If
    Dim varBedingt: Beep '! Umbruch "'varBedingt'"
Dim varLinks '! Umbruch "'varLinks'"
Dim varRechts '! Umbruch "'varRechts'"
    Const cOhne = 1
End Function
Private Property Get Größe()
    Dim varTeil '! Größe "'varTeil'"
    Größe = Dimension + ReDimName
End Property
