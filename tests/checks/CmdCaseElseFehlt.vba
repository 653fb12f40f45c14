'= Modul Auswahl
Option Explicit
Private Const cText = "Select Case x"
Public Sub Mit(ByVal Wert As Long)
    Select Case Wert
        Case 1: Beep
        Case Else
    End Select
End Sub
Public Sub Ohne(ByVal Wert As Long)
    Select Case Wert '! Ohne "'Select Case' ohne 'Case Else'."
        Case 1
            ' Case Else
        Case 2 ' Case Else
            Debug.Print "Case Else", Case_Else
            Rem Case Else
    End Select
    ' Select Case Wert
    Debug.Print "Select Case Wert"
    Rem Select Case Wert
    Beep: Rem Select Case Wert
End Sub
Public Sub Geschachtelt(ByVal a As Long, ByVal b As Long)
    Select Case a '! Geschachtelt
        Case 1
            Select Case b '! Geschachtelt
                Case 2: Beep
            End Select
        Case Else
    End Select
    Select Case a
        Case 1
            Select Case b
                Case Else: Beep
            End Select
    End Select
End Sub
Public Sub Enden(ByVal Größe As Long)
    Select Case Größe
        Case 1
            Debug.Print "End Select" ' End Select
            ' Fortgesetzt: _
              End Select
            Rem End Select
        Case 2
            ' Case Else
        Case Else
    End Select
    Select Case Größe: Case Else: End Select: Select Case Größe: Case 1: End Select '! Enden
    Select Case _ '! Enden
        Größe
        Case 1
    End Select
End Sub
'= Klasse Ampel
Private Sub Class_Initialize()
Marke: Select Case True ' Case Else '! Class_Initialize
        Case False, SelectCase: Beep ' "End Select
    End Select
End Sub
