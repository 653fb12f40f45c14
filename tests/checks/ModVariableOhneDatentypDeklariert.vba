'= Modul Variablen
Option Explicit
Private mOhne, mMit As Long '! Deklarationen "Variable 'mOhne' Datentyp nicht deklariert."
Dim a, b As Long, c '! Deklarationen "'a'" '! Deklarationen "'c'"
Public gName$, gZahl%, gÜbrig '! Deklarationen "'gÜbrig'"
Private mFeld(5), mListe() As String, mTabelle(1 To 5, 2 To 3) As Long, mLetzte '! Deklarationen "'mFeld'" '! Deklarationen "'mLetzte'"
Private mGrenze(UBound(x)) As Long '! Deklarationen "'mGrenze'"
Private mBreit    As Long, mSchmal     As String
Private mLeer() '! Deklarationen "'mLeer'"
Private mNeu As New Collection, WithEventsZahl As Long
Global gGlobal, gWelt As Variant '! Deklarationen "'gGlobal'"
Private mErste As Long, _
    mZweite, _ '! Deklarationen "'mZweite'"
    mDritte As Long
Dim mVor As Long: Dim mNach '! Deklarationen "'mNach'"
Private mKommentar ' As Long '! Deklarationen "'mKommentar'"
Private mRem: Rem As Long '! Deklarationen "'mRem'"
Private mGeteilt _
    As Long
Private mGetrennt As _
    String
Private Const cOhne = 1
Private Type Satz
    Feld As Long
End Type
Private Enum Art
    Erste
End Enum
#If Win64 Then
Private mGriff As LongPtr
#Else
Private mGriff '! Deklarationen "'mGriff'"
#End If
' Private mAlt
Rem Alt: Private mAlt
Private Typen, Enumeration As Long '! Deklarationen "'Typen'"
Public Typenname, Enumerator As Long, Eventliste '! Deklarationen "'Typenname'" '! Deklarationen "'Eventliste'"
Private Enumliste: Public Enumwert: Public Events '! Deklarationen "'Enumliste'" '! Deklarationen "'Enumwert'" '! Deklarationen "'Events'"
Private Constanze: Public Constantin: Global Constanz '! Deklarationen "'Constanze'" '! Deklarationen "'Constantin'" '! Deklarationen "'Constanz'"
Public Sub Lokal(Wert)
    Dim lngLokal
End Sub
'= Klasse Knöpfe
Private WithEvents mKnopf As CommandButton
Public Größe, Öffentlich As Long '! Deklarationen "'Größe'"
Private mRest ' Ende _ '! Deklarationen "'mRest'"
