'= Modul Parameter
Option Explicit
Public Sub Rechnen(ByVal Wert As Long, ByRef Rest As Long, Name$, Optional Größe As Long = 5) '! Rechnen "Parameter 'Rest' wird nicht verwendet." '! Rechnen "'Größe'"
    Debug.Print Wert, "Rest", Name
    ' Rest
    Größe2 = Rest1 + Rest_x: Rem Größe
End Sub
Private Sub Zeichen(a$, b%, c&, d() As Long, ParamArray e()) '! Zeichen "'b%'" '! Zeichen "'e'"
    a = "b": c& = d(1)
End Sub
Public Sub Form_Load(ByVal Index As Long)
End Sub
Private Sub Zeile(ByVal y As Long): Debug.Print y: End Sub '! Zeile "'y'"
Public Sub FormLoad(ByVal Index As Long) '! FormLoad "'Index'"
End Sub
Public Property Get Eintrag(ByVal Nr As Long) As Long
    Eintrag = Nr
End Property
Public Property Let Eintrag(ByVal Nr As Long, ByVal Neu As Long) '! Eintrag "'Nr'"
    mNeu = Neu
End Property
'! Umbruch "'Zweiter'"
' Zweiter stands in front of the header, where nothing is searched.
Public Sub Umbruch(ByVal Erster As Long, _
    ByVal Zweiter As Long, Optional ByVal Dritter As Long = Erster)
    Dim lngErster As Long
    lngErster = _
        Erster: lngErster = Dritter
End Sub
Public Function Länge(ByVal Text As String, ByVal text2 As String) As Long '! Länge "'text2'"
    Länge = Len(Text)
End Function
Private Sub Standard(Optional a As String = "x, y", Optional b As Long, Optional c = "As b") '! Standard "'c'"
    Debug.Print a; b, "' c"
End Sub
Private Sub Schluss(ByVal z As Long) '! Schluss "'z'"
#If DEBUGMODUS Then
    ' z
#End If
End Sub
Private Sub Zeichenkette(ByVal s As String, ByVal t As String) '! Zeichenkette "'t'"
    Debug.Print "a""" & s & """t", "it's " & "t"
End Sub
Private Sub Einzeiler(ByVal x As Long): Debug.Print x: End Sub
'= Klasse Fremd
Public Sub Tun(Wert As Object) '! Tun "'Wert'"
    Tun2 éTyp, WertÄ
End Sub
Public Sub Tun2(Typ As Long, ByVal Rest As Long)
    éTyp = Rest
End Sub
