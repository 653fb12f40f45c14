'= Modul Sprünge
Option Explicit
Private Const cText = "GoTo Marke"
Public Sub Springen(ByVal Wert As Long)
    On Error GoTo Fehler
    On Local Error GoTo 0
    GoTo Ende '! Springen "GoTo wird verwendet"
    If Wert = 1 Then GoTo Ende Else GoTo Fehler ' GoTo Ende '! Springen '! Springen
    On Wert GoTo Ende, Fehler '! Springen
    Application.GoTo Range("A1")
    With Application
        .GoTo Range("B1")
    End With
    ' GoTo Ende
    Rem GoTo Ende
    Beep: Rem GoTo Ende
    ' Fortgesetzt _
      GoTo Ende
    On Error _
        GoTo Fehler
    On _
        Error GoTo Ende
    If Wert > 2 Then _
        GoTo Ende '! Springen
    Debug.Print "GoTo Ende", "'": GoTo Ende '! Springen
    Beep: GoTo Ende: On Error GoTo 0 '! Springen
    MeinGoTo = 5: GoTo_1 = GoTo2: ÖGoTo 1 '! Springen '! Springen
    On Error GoTo -1: Meingoto = 5
    GoTo _ '! Springen
        Ende
    If x Then On Error GoTo Ende: GoTo Ende '! Springen
Ende:
    Error 5: GoTo Ende '! Springen
Fehler: GoTo Ende '! Springen
End Sub
Private Sub Anfang()
GoTo Größe '! Anfang
Größe:
x1: GoTo Größe '! Anfang
End Sub
