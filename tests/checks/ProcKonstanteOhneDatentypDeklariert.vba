'= Modul Lokales
Option Explicit
Private Const cModul = 1
Public Sub Rechnen()
    Const cOhne = 1 '! Rechnen "Konstante 'cOhne' Datentyp nicht deklariert."
    Const cMit As Long = 1, cText$ = "As ", cDritte = 5 '! Rechnen "'cDritte'"
    Const cZitat = "a, b As Long", cNach As Long = 5 '! Rechnen "'cZitat'"
    Const cBreit    As Long = 1, cÜber = 2 '! Rechnen "'cÜber'"
    Const cDoppel As String = "a:b", cRaute = "#" '! Rechnen "'cRaute'"
    Dim lngWert As Long: Const cSpät = 1: Const cTyp As Long = 2 '! Rechnen "'cSpät'"
    #Const TESTLAUF = 1
    Debug.Print "Const cAlt = 1" ' Const cAlt = 1
    Rem Const cAlt = 1
    Debug.Print 1: Rem Const cAlt = 1
End Sub
Private Function Umbruch() As Long
    Const cErste As Long = 1, _
        cZweite = 2, _ '! Umbruch "'cZweite'"
        cDritte _
        As Long = 3
    Const _
        cVierte = 4 '! Umbruch "'cVierte'"
#If VBA7 Then
    Const cGröße = 8 '! Umbruch "'cGröße'"
#Else
    Const cGröße As Long = 4
#End If
    If Umbruch = 1 Then Const cMitten = 1 '! Umbruch "'cMitten'"
    Dim varOhne, Constanze
    Const cKommentar = 1 ' As Long '! Umbruch "'cKommentar'"
    Const cZuerst As Long = 1: varConst = 2 '! Umbruch "'='"
End Function
Private Sub Form_Load()
    Const cNull = 0: Debug.Print cNull '! Form_Load "'cNull'"
End Sub
Public Property Let Größe(ByVal Wert As Long)
    Const cTeil% = 1, cRest = cTeil + 1 '! Größe "'cRest'"
End Property
