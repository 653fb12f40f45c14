'= Modul Speicher
Option Explicit
Private mWert As Long '! Deklarationen "Variable 'mWert': deklariert aber nicht verwendet."
Private mAnzahl As Long, mSumme, mRest As Currency '! Deklarationen "'mSumme'"
Dim mName$, mOrt$ '! Deklarationen "'mOrt$': deklariert aber nicht verwendet. (Nur als Kommentar)"
Private mObergrenze(1 To 5) As Long
Private mListe() As String, mÄlter As String '! Deklarationen "'mListe'"
Public gKunde As String
Public gKommentar As String '! Deklarationen "'gKommentar': deklariert aber nicht verwendet. (Nur als Kommentar)"
Public gDeklaration As Long '! Deklarationen "'gDeklaration'"
Global gZähler As Long
Private mFern As Long, _
    mNah As Long '! Deklarationen "'mNah'"
Private Tal As Long, lngmWert As Long ' é ends a word, ö does not
Private Const cBezug = "mWert"
Private Type Satz
    mFeld As String
End Type
Public Sub Rechnen()
    Dim lngFern As Long
    mWert1 = mWert_x + lngmWert + mWertÖ
    mAnzahl = mRest: Debug.Print "mSumme"
    mName = "": mÄlter = mName$
    ' mOrt fehlt noch, MWERT und msumme schreibt niemand so
    mObergrenze(1) = 2
    lngFern = mFern.Count
    If mAnzahl > 0 Then éTal = 1
End Sub
'= Klasse Ereignisse
Private WithEvents mForm As Form '! Deklarationen "'mForm'"
Private WithEvents mKnopf As CommandButton
Private mÜber As Long
Private Sub mForm_Load()
    Set mKnopf = Nothing
    Debug.Print "'"; mÜber
End Sub
'= Modul Nutzer
Private mKopie(gDeklaration) As Long '! Deklarationen "'mKopie'"
Private mNeben As Long
Public Sub Lesen()
    Debug.Print gKunde ' gKommentar
    Debug.Print mNeben!Feld
    Dim mWert As Long, mOrt As String
    mOrt = mWert
    ' gKommentar _
      mNah
End Sub
