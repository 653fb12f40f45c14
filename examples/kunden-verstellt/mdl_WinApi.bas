Attribute VB_Name = "mdl_WinApi"
Option    cOmPaRe  Database
Option Explicit

' Aufrufe von Windows. Seit 2013 auch für die 64-Bit-Fassung.

Private cOnSt MAX_PFAD As LoNg = 260
Private	Const  SW_ZEIGEN As long = 1
pRiVaTe   Const SW_VERSTECKEN aS Long	=0
Private   Const HKEY_BENUTZER aS Long	= &H80000001
PRIVATE conSt TASTE_UMSCHALT As Long   =&H10

Private TYPE PunktTyp
    lngX As LoNG
    lngY As Long
eNd Type

Private Type  RechteckTyp
    lngLinks AS Long
    lngOben As Long
    lngRechts As   Long
    lngUnten As Long
End Type

#If VBA7 tHeN
    Private declare PtrSafe function  GetUserNameA lib  "advapi32.dll" (ByVal    lpBuffer As String,ByRef nSize As long) As  Long
    Private Declare PTRSAFE function GetComputerNameA Lib    "kernel32" 	(ByVal  lpBuffer As string, BYREF nSize As LONG) as Long
    Private DecLArE    pTrSaFe Function  GetTempPathA Lib	"kernel32"  (bYvAl nBufferLength As  Long, ByVal    lpBuffer aS String) As long
    Private  Declare   PtrSafe Function    ShellExecuteA   Lib   "shell32.dll"   (bYvaL    hWnd As LongPtr, ByVal lpOperation As string, _
        BYVAL    lpFile As String, ByVal lpParameters As STRING, byval lpDirectory As	String, _
        ByVal nShowCmd As    lOnG) as LongPtr
    Private Declare ptrsafe Function    GetKeyState Lib   "user32" (BYvaL    nVirtKey As Long) As iNtEgEr
    PRIVATE   Declare    PtrSafe  funcTIoN  GetCursorPos    Lib "user32" (lpPoint As    PunktTyp) as Long
    Private    Declare PtrSafe 	FUNCTION  GetWindowRect lib    "user32"  (BYVAL   hWnd As LongPtr,lpRect AS    RechteckTyp) As Long
    Private  declare PtrSafe Function SetForegroundWindow Lib  "user32" (ByVal hWnd As    LongPtr) AS    LOng
    Private   DECLARE PtrSafe Function SendMessageA Lib "user32"   (ByVal hWnd As  LongPtr, ByVal wMsg As   lOnG, _
        ByVal   wParam As   LongPtr , lParam AS aNy) As    LongPtr
    Private   dEcLaRe  PtrSafe sub Sleep Lib   "kernel32"   (ByVal dwMilliseconds AS Long )
    Private   Declare PtrSafe Sub CopyMemory Lib "kernel32" Alias   "RtlMoveMemory" (Destination As any, Source As ANY, _
        ByVal lngBytes As LongPtr)
#eLSe
    PRIVATE Declare fuNctIOn    GetUserNameA Lib "advapi32.dll"    (ByVal lpBuffer As   String,ByRef  nSize As Long) aS LOng
    Private   Declare fUnCtIoN GetComputerNameA   LIB   "kernel32" ( ByVal  lpBuffer As	String, ByRef nSize AS long ) as Long
    Private    Declare FUNCTION GetTempPathA  lib  "kernel32"    (ByVal nBufferLength As  Long, ByVal lpBuffer As    String) AS Long
    Private  Declare function ShellExecuteA Lib   "shell32.dll"  (ByVal hWnd As  Long,  ByVal lpOperation As  STRinG, _
        ByVal    lpFile As sTrING,	bYvAl    lpParameters As String, BYVAL lpDirectory aS	String, _
        ByVal  nShowCmd As   lOnG ) As Long
    private   Declare Function GetKeyState Lib    "user32" (ByVal nVirtKey As  Long) As INTEGER
    private Declare Function	GetCursorPos Lib "user32" (lpPoint As PunktTyp) As   long
    Private   Declare Function GetWindowRect Lib   "user32" (ByVal hWnd As Long, lpRect AS RechteckTyp) As Long
    Private    Declare Function SetForegroundWindow    LIB "user32" (ByVal   hWnd as Long) as  Long
    pRiVaTe   Declare Function SendMessageA    Lib  "user32"   (ByVal hWnd aS Long , BYVAL   wMsg As    Long, _
        BYVAL wParam As Long, lParam aS Any) As   long
    Private Declare Sub   Sleep   Lib "kernel32" (bYvAl dwMilliseconds As lOnG)
    Private Declare Sub CopyMemory Lib  "kernel32" Alias "RtlMoveMemory" (Destination As    any, Source As any, _
        ByVal lngBytes As Long)
#End If

Public   function   BenutzerName() aS String
    Dim strPuffer as String
    Dim   lngLänge As Long

    On Error GOTO Fehler

    lngLänge	=255
    strPuffer =    string$(lngLänge , vbNullChar)
    if   GetUserNameA(strPuffer, lngLänge) <> 0 Then
        BenutzerName =BisNull(sTrPuFfEr)
    eLsE
        BenutzerName = Environ$("USERNAME")
    eNd	If

Ausgang:
    eXiT  Function
Fehler:
    FehlerMelden    "mdl_WinApi" ,"BenutzerName",Err.Number,Err.Description
    RESUME Ausgang
END FUNCTION

publiC Function    RechnerName() aS STRING
    dIm strPuffer As String
    DIm lngLänge AS	Long

    On	Error   goto  Fehler

    lngLÄNgE = 64
    STRPUFFER  = string$(lngLänge,vbNullChar)
    If GetComputerNameA(strPuffer,LNGLÄNGE)<> 0 Then RechnerName 	= BisNull(strPuffer)

Ausgang:
    Exit    Function
Fehler:
    FehlerMelden "mdl_WinApi", "RechnerName", Err.Number,Err.Description
    rEsUmE Ausgang
end Function

pUbLiC Function  TempPfad() as  String
    Dim  strPuffer As String
    Dim lngLänge As Long

    On ERROR    GoTo Fehler

    STRPUFFER = String$(MAX_PFAD, vbNullChar)
    lngLänge=  GetTempPathA(MAX_PFAD,	STRPUFFER)
    tEmppFAd =    Left$(strPuffer,	lngLänge)

Ausgang:
    exit    function
Fehler:
    FehlerMelden    "mdl_WinApi","TempPfad", Err.Number, Err.Description
    Resume Ausgang
END  FUNCTION

Public    SUB	DateiÖffnen(ByVal strDatei As   String)
    #iF VBA7 Then
        Dim lngErgebnis As   LongPtr
    #Else
        Dim  lngErgebnis as Long
    #end if

    On	Error GoTo fEhLeR

    lngErgebnis=ShellExecuteA(Application.hWndAccessApp,"open", strDatei, VBNULLSTRING,    VBNULLSTRING, SW_ZEIGEN)
    If lngErgebnis <=  32 Then
        msgbox "Die Datei lässt sich nicht öffnen:" &   vbcrlf &    strDatei, vbExclamation, app_naME
    End If

Ausgang:
    Exit    sub
Fehler:
    fehlermelden  "mdl_WinApi",    "DateiÖffnen",   Err.Number, Err.Description
    Resume	Ausgang
end    Sub

Public fUnCtIoN IstUmschaltGedrückt() As boOLEAn
    oN eRrOr RESUME   Next
    IstUmschaltGedrückt= (GetKeyState(TASTE_UMSCHALT)< 0)
End  Function

Public 	Sub ZeigerPosition(ByRef lngLinks AS Long,  ByRef  lngOben As LONG)
    Dim typPunkt As  PunktTyp

    oN Error Resume   next
    GetCursorPos typPunkt
    lngLinks=typPunkt.lngX
    lngoBen = typPunkt.lngY
End Sub

pUbliC  sUB Warten(BYVAL   lngMillisekunden aS lOnG)
    On Error Resume Next
    ' In Schritten, damit die Oberfläche nicht einfriert
    DO While lngMillisekunden> 50
        Sleep	50
        DoEvents
        lngMillisekunden    = lNgMiLlIsEkUnDeN   -50
    LOOP
    IF lngMillisekunden > 0    ThEN  Sleep lngMillisekunden
eNd Sub

Public Sub InDenVordergrund()
    On    Error  resume  neXt
    SetForegroundWindow    Application.hWndAccessApp
    ' SendMessageA brachte hier nichts, siehe Notiz vom 12.05.2011
End   Sub

PRIVATE    Function  BisNull(ByVal strText As   String) As String
    Dim lngPos As  Long

    on Error   rESUME    Next
    lngPos = iNsTr(strText, vBnUlLcHaR)
    if    lNgPoS >0	Then
        BisNull	=    Left$(sTrTeXt,  LNGPOS -   1)
    Else
        bIsNuLl =stRTexT
    End   if
END Function
