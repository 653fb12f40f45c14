'= Modul Lokales
Option Explicit
Private mModul As Long
' Dim in a comment in front of the header
Public Sub Rechnen(ByVal Wert As Long)
    Dim lngWert As Long, lngRest, strText$ '! Rechnen "Variable 'lngRest': deklariert aber nicht verwendet."
    Dim arr(1 To 5, 2 To 3) As Long, colÜbrig As New Collection '! Rechnen "'colÜbrig': deklariert aber nicht verwendet. (Nur als Kommentar)"
    ReDim arrNeu(5) As Long
    Static lngFest As Long
    strText = "lngRest": arr(1, 2) = lngWert
    ' colÜbrig
    lngRest2 = lngRest_x + Wert
    Debug.Print "Dim lngAlt As Long" ' Dim lngAlt As Long
    Rem Dim lngAlt As Long
End Sub
Private Sub Reihenfolge()
    lngSpät = 1
    Dim lngSpät As Long '! Reihenfolge "'lngSpät'"
    Dim a As Long: Dim b As Long: a = 1 '! Reihenfolge "'b'"
    Dim lngErste As Long, _
        lngZweite As Long, _
        lngDritte As Long '! Reihenfolge "'lngDritte'"
    lngErste = lngZweite
    If a Then Dim c As Long '! Reihenfolge "'c'"
    Dim _
        lngEinzeln As Long '! Reihenfolge "'lngEinzeln'"
    Dim d As Long: ReDim lngNeu(1) '! Reihenfolge "'d'" '! Reihenfolge "'lngNeu'"
End Sub
Private Sub Form_Load()
    Dim éTal As Long, Tal As Long, Öl As Long '! Form_Load "'Öl'"
    éTal = 1
    ÄÖl = 2
    Dim Anzahl: Anzahl = 1: Dim AnzahlMax '! Form_Load "'AnzahlMax'"
End Sub
Public Property Get Größe() As Long
    Dim lngTeil As Long '! Größe "'lngTeil'"
#If Win64 Then
    Dim lngGriff As LongLong
#Else
    Dim lngGriff As Long
#End If
    Größe = lngGriff
End Property
Public Property Let Größe(ByVal Wert As Long)
    Dim lngTeil As Long
    Const cMax = 5
    lngTeil = Wert
End Property
