'= Klasse Bereiche
Option Explicit
Sub Ohne() '! Ohne "Scope der Prozedur nicht explizit deklariert."
End Sub
Public Sub Öffentlich()
End Sub
Private Sub Privat()
End Sub
Friend Function Freund() As Long
End Function
Function Rückgabe() As Long '! Rückgabe
End Function
Static Sub Fest() '! Fest
    Static lngPublic As Long
End Sub
Private Static Sub PrivatFest()
End Sub
Static Function PublicFest() As Long '! PublicFest
End Function
Property Get Größe() As Long '! Größe
End Property
Public Property Let Größe(ByVal Wert As Long)
End Property
Property Set Größe(ByVal Wert As Object) '! Größe
End Property
'! Fortgesetzt
' Public or Private in front of the header is no scope.
Sub Fortgesetzt(ByVal Erster As Long, _
    ByVal PrivateZahl As Long)
End Sub
Private Sub Form_Load()
End Sub
Public _
    Sub Umbrochen()
End Sub
Sub PublicName() '! PublicName
End Sub
Sub Einzeiler(): Beep: End Sub '! Einzeiler
#If VBA7 Then '! Wahl
Sub Wahl(ByVal Griff As LongPtr)
#Else
Private Sub Wahl(ByVal Griff As Long)
#End If
End Sub
'= Modul Gleich
Sub Erste() ' Private '! Erste
End Sub
    Public Sub Eingerückt()
    End Sub
