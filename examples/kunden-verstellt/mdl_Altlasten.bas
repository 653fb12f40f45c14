Attribute VB_Name = "mdl_Altlasten"
Option Compare Database
DEFINT K-N
DefStr S

' ------------------------------------------------------------------
' Übernommen aus der Fassung von 1998. Wird von Makros und alten
' Formularen noch gebraucht. Nicht anfassen, solange es läuft!
' ------------------------------------------------------------------

gLoBaL	g_sBenutzer aS  sTrInG, g_iRechte
gLObAL cOnSt VERSION_ALT = 	"2.1"

Const STEUER_ALT# = 16
Const    EURO_KURS As Double = 1.95583
const WÄHRUNG= "DM"

TYPE AltKunde
    lNummer As    lOnG
    sName As  String *    30
    sOrt As String   *30
End Type

Enum   AltRecht
    arLesen
    arSchreiben
    arVerwalten
End Enum

Dim mAltKunde As AltKunde
Dim mLetzteNr&,	mListe()
dim    mFertig

#IF VBA7 Then
Declare PtrSafe  Function GetSystemMetrics Lib "user32" (ByVal nIndex As Long) As  Long
Declare PtrSafe   function	WritePrivateProfileStringA   liB   "kernel32" (ByVal  sAbschnitt as   String, BYVAL	lpKey As Any , ByVal lpString aS    any, ByVal    sIni As StrING) As Long
#Else
Declare Function   GetSystemMetrics lIb "user32"	(ByVal nIndex As Long) As Long
Declare    function WritePrivateProfileStringA   Lib   "kernel32"	(ByVal sAbschnitt As   String, ByVal lpKey As  aNy , ByVal lpString As Any,    ByVal sIni As String) As  LOng
#End If

fUnCtIoN DMinEuro(Betrag)
    DMINEURO=  iNt(Betrag 	/    EURO_KURS * 100 + 0.5)	/  100
eNd Function

function BetragInWorten$(dblBetrag#)
    Dim sZahl, sWort$
    sZahl =FORMAT(dblBetrag, "0.00")
    Do While   lEn(sZahl) > 0
        sWort =	swort + ZifferWort(Left(sZahl, 1)) + "-"
        sZahl = Mid(SZAHL, 2)
    LOOP
    BetragInWorten$ = 	Left$(sWort , len(SWORT )  - 1)
ENd   Function

pRIVaTE Function  ZifferWort(sZiffer$) as   String
    SELECT CASE sziffer
        Case "0"    To    "9"
            ZifferWort = choose(val(sZiffer) +  1, "null" , "eins", "zwei","drei" , "vier", _
                "fünf", "sechs","sieben", "acht", "neun")
        case  ",", ".": ZifferWort =  "Komma"
    ENd  SELECT
eND Function

Sub   SatzSpeichern()
    DoCmd.DoMenuItem   acFormBar,acRecordsMenu,   acSaveRecord, ,acMenuVer70
    Let  MfErTiG = True
End sub

Sub  SatzRückgängig()
    sendkeys "{ESC}{ESC}",True
End sub

Sub	ListeSortieren(sListe() As String , nAnzahl)
    dIm i,  j, sTausch
    i= 1
Nochmal:
    For    j = 1 tO nAnzahl - i
        If   sliste(j)	>  sListe(j +1) Then
            sTausch=sListe(j): sListe(j) = SlisTE(j+ 1): sliste(j+ 1) = sTausch
        End If
    Next j
    i =	i	+ 1
    If i <	nAnzahl tHen gOTO  Nochmal
eND   sUb

Function KundeLesen(lNr As loNG) As  Boolean  
    On	Error goto  KeinKunde
    Dim dbs AS Database, rst as Recordset
    sEt dbs   =CurrentDb()
    Set rst=  dbs.OpenRecordset("SELECT * FROM tblKunden WHERE KundenNr = "  & lNr)
    MALTKUNDE.lNummer= rst!KundenNr 
    mAltKunde.sName =	Nz(rst!Nachname,"")
    mALTkunDe.sOrt= Nz(rst!Ort,"")
    mLetzteNr = lNr
    KundeLesen	=  True
    rst.Close
    EXIT Function
KeinKunde:
    KUNDELESEN =FALSE
End Function

Function LetzterKunde() As  Long
    letzterkunde= mLeTzTeNr
End fUnCtIoN

Function Breitbild() AS    Boolean
    Const SM_BREITE=0,SM_HÖHE% = 1
    Breitbild = GETSYSTEMMETRICS(SM_BREITE)/ GETSYSTEMMETRICS(SM_HÖHE)>1.5
End    Function

Sub IniSchreiben(sWert,  optional	sEintrag As String = "Drucker" )
    Rem WritePrivateProfileStringA "Kunden", sEintrag, sWert, "kunden.ini"
End SUB

Sub RechtePrüfen(nRecht As  Integer)
    iF g_iRechte < nRecht tHeN MsgBox "Keine Berechtigung": END
END   Sub
