'= Klasse Werte
Option Explicit
Private mLet As Long
Public Property Let Größe(ByVal Wert As Long)
    Let mLet = Wert '! Größe "Let wird verwendet"
End Property
Property Let Nackt(ByVal Wert As Long)
    mLet = Wert: Let mLet = 5 '! Nackt
End Property
Private Property Let Lokal(ByVal Wert As Long) ' Let Wert
    ' Let mLet = 1
    Rem Let mLet = 1
    Beep: Rem Let mLet = 1
    Debug.Print "Let x = 1", "'": Let mLet = 2 ' Let '! Lokal
End Property
Public Property _
    Let Umbruch(ByVal Wert As Long)
    If Wert = 1 Then Let mLet = 1 Else Let mLet = 2 '! Umbruch '! Umbruch
End Property
Public Sub Rechnen()
    Let a = 1: Let b = 2 '! Rechnen '! Rechnen
    Letzter = Outlet + Let_1 + Let1 + ÄLet
    Let _ '! Rechnen
        mLet = 1
    ' Fortgesetzt _
      Let x = 1
    Debug.Print "Property Let x", "Let"
Ende: Let mLet = 5 '! Rechnen
    Debug.Print "Property ": Let mLet = 6 '! Rechnen
    If mLet Then _
        Let mLet = 7 '! Rechnen
End Sub
