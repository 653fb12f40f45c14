'= Modul Sprünge
Option Explicit
Private Const cText = "GoSub Marke"
Public Sub Springen(ByVal Wert As Long)
    GoSub Marke '! Springen "GoSub wird verwendet"
    On Wert GoSub Marke, Ende '! Springen
    If Wert = 1 Then GoSub Marke Else GoSub Ende ' GoSub Ende '! Springen '! Springen
    Debug.Print "GoSub Marke", "'": GoSub Marke '! Springen
    ' GoSub Marke
    Rem GoSub Marke
    Beep: Rem GoSub Marke
    ' Fortgesetzt _
      GoSub Marke
    MeinGoSub = 5 ' Names that merely end in these letters count too. '! Springen
    GoSubs = GoSub_1 + GoSub2: Meingosub = 5
    ÖGoSub 1 '! Springen
    GoSub _ '! Springen
        Ende
    GoTo Ende
Marke:
    Return
Ende: GoSub Marke '! Springen
End Sub
Public Sub GoSub1(ByVal GoSubÄ As Long)
    Debug.Print GoSubÄ
End Sub
'= Klasse Ohne
Public Sub Gerade()
    Debug.Print "GoSub "
    Call MeinGoSub
    Beep
End Sub
