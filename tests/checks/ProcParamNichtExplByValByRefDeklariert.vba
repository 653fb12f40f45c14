'= Modul Übergabe
Option Explicit
Public Sub Ohne(a, b As Long, c$) '! Ohne "Parameter 'a' nicht explizit ByVal / ByRef deklariert." '! Ohne "'b'" '! Ohne "'c$'"
End Sub
Public Sub Mit(ByVal a As Long, ByRef b As String)
End Sub
Public Sub Wahlweise(Optional x As Long, Optional ByVal y As Long = 5, Optional ByRef z) '! Wahlweise "'x'"
End Sub
Public Sub Reihe(a As Long, ParamArray x()) '! Reihe "'a'"
End Sub
Private Sub Form_Load(Cancel As Integer)
End Sub
Private Sub Zeile(y As Long): Debug.Print y: End Sub '! Zeile "'y'"
Private Sub FormLoad(Cancel As Integer) '! FormLoad "'Cancel'"
End Sub
Public Sub Felder(a() As Long, ByRef b() As Long) '! Felder "'a'"
End Sub
Public Sub Standard(Optional a As String = "ByVal b, ByRef c", Optional ByValWert As Long) '! Standard "'a'" '! Standard "'ByValWert'"
End Sub
Public Property Get Größe(Nr As Long) As Long '! Größe "'Nr'"
End Property
Public Property Let Größe(ByVal Nr As Long, Neu As Long) '! Größe "'Neu'"
End Property
'! Umbruch "'Dritter'"
' ByVal in a comment
Public Sub Umbruch(ByVal Erster As Long, _
    ByRef _
    Zweiter As Long, Dritter As Long)
End Sub
Public Sub Leer()
End Sub
Public Function Kommentar(Wert As Long) As Long ' ByVal Wert '! Kommentar "'Wert'"
End Function
Public Sub Klammer(Optional ByVal a As String = ")", Optional b As String)
End Sub
Public Sub Einzeiler(x As Long): Debug.Print x: End Sub
'= Klasse Weitere
Friend Sub Tun(Wert As Object) '! Tun "'Wert'"
End Sub
