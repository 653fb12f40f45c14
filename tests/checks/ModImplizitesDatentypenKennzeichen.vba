'= Modul Kürzel
Option Explicit
Private mName$, mAnzahl&, mSumme# '! Deklarationen "Variable 'mName$'" '! Deklarationen "Variable 'mAnzahl&'" '! Deklarationen "Variable 'mSumme#'"
Private mGröße!, mOhne, mMenge%, mBetrag@ '! Deklarationen "'mGröße!'" '! Deklarationen "'mMenge%'" '! Deklarationen "'mBetrag@'"
Public gListe$(5), gTabelle&(1 To 2, 1 To 3) '! Deklarationen "Variable 'gListe$'" '! Deklarationen "Variable 'gTabelle&'"
Private Const cText$ = "a$, b$", cZahl% = 1 '! Deklarationen "Konstante 'cText$'" '! Deklarationen "Konstante 'cZahl%'"
Private Const cOhne = 5&, cTyp As String = "x$"
Private mTyp As String, mFeld(3) As String
Private mLetzte As Long, _
    mFortgesetzt$ '! Deklarationen "'mFortgesetzt$'"
Private Declare PtrSafe Function Hole Lib "kernel32" (ByVal a$) As Long
Private Type Satz
    Bezeichnung As String
End Type
' Private mAlt$
Private mNeu As Long: Private mKurz% '! Deklarationen "'mKurz%'"
Rem Private mAlt$
#If Win64 Then
Private mGriff@ '! Deklarationen "'mGriff@'"
#Else
Private mGriff& '! Deklarationen "'mGriff&'"
#End If
Private Sub Lokal(ByVal strText$)
    Dim strLokal$
    strLokal$ = strText$
End Sub
'= Klasse Ohne
Dim mWert As Variant, mStück
'= Klasse Mit
Dim strEreignis$ '! Deklarationen "'strEreignis$'"
Global Const cRest! = 1.5 '! Deklarationen "Konstante 'cRest!'"
