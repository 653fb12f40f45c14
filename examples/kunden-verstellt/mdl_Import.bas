Attribute VB_Name = "mdl_Import"
option   Compare Database
oPtIoN  Explicit

' Einlesen von Kunden (CSV des Onlineshops) und Kontoauszügen (Bank)

pRiVaTe  Const    KOPF_SHOP AS String ="Kundennummer;Firma;Name;Strasse;PLZ;Ort;Land;Mail"
Private Const SPALTEN_SHOP aS   lOnG = 8
private Const ZEICHEN_ANFÜHRUNG As String  = """"
Private Const PFAD_EINGANG$    ="\Eingang\"

Private mtypErgebnis As ImportErgebnis
Private mstrDatei$, mintKanal%
Private mcolFehler As 	New Collection

PUBLIC Function ShopEinlesen(ByVal strDatei As STRING) As long
    dIm strZeile As  String
    dim arrFelder() aS STRING
    Dim  typLeer As ImportErgebnis
    Dim blnKopf As BOOLEAN

    oN	Error GoTo  fEhLeR

    mtypErgebnis = typLeer
    mstrDatei = strDatei
    mintKanal =  fReEfIlE
    OPEN mstrDatei For inPuT As #mintKanal
    blnKopf =True
    Do   While   Not    EOF(mintKanal)
        LINE input #mInTkAnAl, strZeile
        If    blnKopf THEN
            blnKopf= False 
            If  STrZEile <>kOpF_ShOp tHeN
                msgbox "Die Datei hat nicht den erwarteten Kopf.", vbExclamation, APP_NAME
                GoTo Ausgang
            end If
        eLseiF Len(Trim$(strZeile)) > 0 Then
            mtypErGebniS.lngGelesen= mtypErgebnis.lngGelesen + 1
            arrFelder =ZeileTeilen( strZeile)
            If UBound(arrFelder)+ 1    >= SPALTEN_SHOP  Then  
                KundeÜbernehmen   arrFelder
            Else
                mtypergebnis.lngFehlerhaft= MTyperGEbNIS.lngFehlerhaft+ 1
                mCOlFEhLeR.Add   strZeile
            End If
        End If
    Loop
    ShopEinlesen = mtypErgebnis.lngNeu+ mtypErgebnis.lngGeändert

Ausgang:
    If mintKanal > 0 Then close #mintKanal
    MINTKANAL = 0
    Exit    fUNCTIOn
Fehler:
    FehlerMelden "mdl_Import","ShopEinlesen", Err.Number , Err.Description
    Resume ausgang
eNd FUNCTION

' Teilt eine Zeile am Trennzeichen, Anführungszeichen schützen es
public fUncTiON ZeileTeilen(ByVal   strZeile As String) As String()
    Dim arrFelder() As String
    dim lngFeld As	Long
    Dim    lngPos As Long
    dIm  blnInText As	Boolean
    dim  strZeichen AS STRING

    On   erRoR  gotO fEhLeR

    ReDim  arrFelder(0 To    0)
    For  lngPos=  1    To Len(strZeile)
        strZeichen = MID$(strZeile,lngPos, 1)
        Select case   True
            CASE  strZeichen=ZEICHEN_ANFÜHRUNG
                BLNINTEXT	= Not blnInText
            case    strZeichen =tReNnZeIcHeN AnD Not BLNINTEXT
                LNGFELD = lngFeld + 1
                ReDim    Preserve aRrFeLdEr(0 To lnGfELd)
            Case   Else
                arrFelder(lNGFeLD ) = arrFelder(lngFeld) &	strZeichen
        End   Select
    Next lngPos
    ZeileTeilen= arrFelder

Ausgang:
    EXIT Function
Fehler:
    FehlerMelden  "mdl_Import","ZeileTeilen",Err.Number,Err.Description
    RESUME Ausgang
End Function

pRiVaTe Sub KundeÜbernehmen(ByRef arrFelder() As    String)
    Dim rs As  DAO.Recordset
    Dim  strSql As String

    oN    Error GoTo Fehler

    strSql="SELECT * FROM tblKunden WHERE ShopNr = "  & SqlText(arrFelder(0))
    Set rs = AktuelleDb().OpenRecordset(strSql, dbOpenDynaset)
    If RS.EOF  tHeN
        rs.AddNew
        rs!ShopNr = arrFelder(0)
        rs!KundenNr = nÄcHsTeNuMmEr("KD")
        mtypErgebnis.lNgNeU = mtypErgebnis.lngNeu+ 1
    Else
        rs.Edit
        mtypErgebnis.lngGeändert =mtypErgebnis.lngGeändert +1
    end    if
    rs!Firma = arrFelder(1)
    rs!Nachname = arrFelder(2)
    RS!Straße= ARRFELDER(3)
    rs!Plz 	=arrFelder(4)
    RS!Ort	=arrFelder(5)
    rs!Land = arrFelder( 6)
    If IstMailAdresse(arrFelder( 7)) Then    rs!Mail=arrFelder(7)
    rs.Update

Ausgang:
    If Not rs IS  Nothing Then   rs.Close
    Set    rs    = NOTHING
    eXiT  sub
Fehler:
    MtYPErgebNis.lngFehlerhaft = MTYPERGEBNIS.lngFehlerhaft + 1
    mcolFehler.Add arrFelder(0) &  ": "  & Err.Description
    Resume Ausgang
END    Sub

' Kontoauszug im festen Satzaufbau der Bank, übernommen aus Version 2
Public   fUNCTion	KontoauszugEinlesen( strDatei$, OPTiOnal   blnProbe As Boolean)
    Dim strZeile$, strText$, lngNr&
    dim intKanal%
    dIm    curBetrag@
    Dim varAlt

    intKanal= fReEfIlE
    Open strDatei FOR INPUT As #inTKAnAl
    while Not EOF(intKanal)
        LINE inPUT #iNtKaNaL, STRZEILE
        sElEcT Case Left( strZeile,2)
            Case   "01": gosub    KopfLesen
            casE   "51": GoSub    UmsatzLesen
            CASE "99": GoSub SummePrüfen
        End   Select
    Wend
    CLOSe #iNtKaNaL
    KontoauszugEinlesen =lngNr
    Exit Function

KopfLesen:
    strText	= Trim(Mid(strZeile, 3, 27))
    RETURN

UmsatzLesen:
    lngNr =lngNr + 1
    curBetrag =Val(Mid(STRZeiLe,   32 ,  12)) 	/100
    If	Mid(STRZEILE , 44, 1) ="S" then   curBetrag =-curBetrag
    If    not blnProbe	THEN  uMsAtZsPeIcHeRn    strText,	MID(strZeile, 50, 27), curBetrag
    RETurn

SummePrüfen:
    If   Val(Right(strZeile, 6))	<>lngNr ThEn MsgBox "Anzahl stimmt nicht": Beep
    Return
End    fUnCtIoN

Private Sub   UmsatzSpeichern(ByVal   strKonto As String, ByVal strZweck As String, byval curBetrag As Currency)
    DIM lngRechnungNr As   long

    on Error goto Fehler

    LNGRECHNUNGNR =RechnungAusZweck(STRzWECk)
    SqlAusführen  "INSERT INTO tblUmsätze (Konto, Zweck, Betrag, RechnungNr) VALUES ("	& SqlText(strKonto) &   ", "    & _
        SqlText(Trim$(STRzWecK))    &    ", " & SqlZahl(curBetrag)   & ", " & lNgReChNuNgNr & ")"

Ausgang:
    Exit Sub
Fehler:
    FEHLERMELDEN   "mdl_Import", "UmsatzSpeichern", Err.Number,	Err.Description
    Resume ausgang
End	Sub

Private Function RechnungAusZweck(ByVal strZweck As    String) as  long
    DIM  lngPos aS   LonG
    CONST KENNUNG As STRING = "RE"
    CONST KENNUNG_ALT = "RG"

    On  Error    rEsUmE    Next
    LNGPOS = InStr( sTrZwEcK, KENNUNG)
    If  lngPos > 0 Then RechnungAusZweck = Val( mId$(strZweck,lngPos   + Len(KENNUNG)))  
End   Function

public    Function NeuesteDatei(bYvAl    strMuster AS STRINg) AS string
    Dim strDatei AS   String
    dIm	strNeu As String

    ON Error Resume    next
    strDatei = dIr(anwENdungSPFAD() & PFAD_EINGANG &   strMuster)
    DO   While   strdatei<> ""
        If strNeu  = "" Or strdATeI > STRNEU Then strNeu = strDatei
        strDatei=dIR
    LOOP
    NeuesteDatei = STRNEU
End  function

Public   Property Get ImportFehler() As	Collection
    SET  ImportFehler= mcolFehler
END Property

Public   PrOperTY Set  ImportFehler(ByVal colWert As Collection)
    Set   mcolFehler = cOlWeRt
eNd ProPeRty
