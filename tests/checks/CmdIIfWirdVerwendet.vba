'= Modul Bedingungen
Option Explicit
Private Const cIIf = "IIf(a, b, c)"
Public Function Wählen(ByVal Wert As Long) As String
    Wählen = IIf(Wert > 1, "ja", "nein") '! Wählen "Es wird 'IIf' verwendet"
    Wählen = IIf(Wert > 1, IIf(Wert > 2, "zwei", "eins"), "IIf") ' IIf '! Wählen '! Wählen
    Wählen = VBA.IIf(True, 1, 2) & _ '! Wählen
        IIf(False, 3, 4) '! Wählen
    ' IIf(a, b, c)
    Rem IIf(a, b, c)
    Beep: Rem IIf(a, b, c)
    ' Fortgesetzt _
      IIf(a, b, c)
    Debug.Print "IIf(1, 2, 3)", "'" & IIf(True, "x", "y") '! Wählen
    IIfNeu = IIf_1 + MeinIIf + IIf2 + ÄIIf
    If Wert Then Debug.Print "a" Else Debug.Print IIf(Wert, 1, 2) '! Wählen
End Function
Public Function IIf(ByVal Ausdruck As Boolean, Optional ByVal Ja, Optional ByVal Nein)
    If Ausdruck Then IIf = Ja Else IIf = Nein '! IIf '! IIf
End Function
Public Sub Umbruch(ByVal Erster As Boolean, _
    ByVal IIf As Long) '! Umbruch
    Debug.Print Erster
End Sub
Public Sub Einzeiler(): Debug.Print IIf(True, 1, 2): End Sub
Public Property Get Größe() As Long
Ende: Größe = IIf(True, 1, 2) '! Größe
End Property
